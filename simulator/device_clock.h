#pragma once

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zephon::simulator {

// A moment of universal time (seconds since 1970) as the device writes it: hh:mm:ss mm/dd/yyyy.
std::string clockText(std::int64_t unixSeconds);

// The same moment as its six parts, BCD; the year since 2000.
struct ClockBytes {
  char year, month, day, hour, minute, second;
};
ClockBytes clockBytes(std::int64_t unixSeconds);

// The moment that seven bytes set: hour, minute, second, month, day, year (BCD, years since 2000) and the
// weekday, Sunday 0. Nothing for bytes that are no date: the device then keeps its clock.
std::optional<std::int64_t> clockFromBytes(std::string_view bytes);

// A clock that runs with the loop's time (seconds since its start) and can be set. It ticks whole seconds
// from the moment when it was set.
class DeviceClock {
 public:
  // Universal time at second 0.
  explicit DeviceClock(std::int64_t unixStart) : base_(unixStart) {}

  std::int64_t at(double now) const { return base_ + static_cast<std::int64_t>(std::floor(now - setAt_)); }
  // When it shows this time.
  double momentOf(std::int64_t unixSeconds) const {
    return setAt_ + static_cast<double>(unixSeconds - base_);
  }
  void set(double now, std::int64_t unixSeconds) {
    setAt_ = now;
    base_ = unixSeconds;
  }

 private:
  double setAt_ = 0;
  std::int64_t base_;
};

}  // namespace zephon::simulator
