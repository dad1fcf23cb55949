#pragma once

namespace zephon::simulator {

// Adds up power over time. Seconds since the loop's start, watts, kilowatt-hours.
class EnergyMeter {
 public:
  explicit EnergyMeter(double now) : until_(now) {}

  double total(double now) const { return total_ + watts_ * (now - until_) / kWattSecondsPerKilowattHour; }
  // From now on the power is `watts`.
  void setPower(double now, double watts) {
    setTotal(now, total(now));
    watts_ = watts;
  }
  void setTotal(double now, double kilowattHours) {
    total_ = kilowattHours;
    until_ = now;
  }

 private:
  static constexpr double kWattSecondsPerKilowattHour = 3.6e6;

  double total_ = 0;
  double watts_ = 0;
  double until_;
};

}  // namespace zephon::simulator
