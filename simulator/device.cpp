#include "simulator/device.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace zephon::simulator {
namespace {

constexpr double kLookSeconds = 10.0;
constexpr double kOverloadSeconds = 10.0;
constexpr double kGroundFaultVolts = 30.0;

Site::Place placeOf(const Profile& profile, const Options& options) {
  return {options.seed, profile.mainsVolts(), profile.mainsHertz(), options.unixStart, options.disturbances};
}

std::optional<ImageEvent> imageEvent(Event event) {
  switch (event) {
    case Event::Overload:
      return std::nullopt;
    case Event::Outage:
      return ImageEvent::Outage;
    case Event::UnderShutdown:
    case Event::UnderRecord:
      return ImageEvent::UnderVoltage;
    case Event::OverRecord:
    case Event::OverShutdown:
      return ImageEvent::OverVoltage;
    case Event::Surge:
      return ImageEvent::Surge;
  }
  return std::nullopt;
}

std::int64_t wholeSeconds(double seconds) {
  return static_cast<std::int64_t>(std::floor(seconds));
}

}  // namespace

Device::Device(const Profile& profile, const Options& options)
    : registers(factoryRegisters(profile.rating)),
      image(factoryBytes(profile.rating)),
      userId(fitted(profile.userId, 10)),
      centreTapped(profile.knowsWiring() && profile.mainsVolts() >= 220),
      profile_(profile),
      options_(options),
      site_(placeOf(profile, options)),
      now_(-options.pastSeconds),
      cycleEnd_(now_),
      lastEvent_(now_),
      clock_(options.unixStart),
      energy_(now_) {
  energySince_ = clock();
  look();
  advanceTo(0);
}

void Device::advanceTo(double seconds) {
  while (now_ < seconds) {
    const double grid = (std::floor(now_ / kLookSeconds) + 1.0) * kLookSeconds;
    const double horizon = cycling() ? std::min(grid, cycleEnd_) : grid;
    const double next = site_.nextChange(now_, horizon);
    if (next > seconds) {
      now_ = seconds;
      return;
    }
    step(next);
  }
}

void Device::step(double seconds) {
  const double from = now_;
  now_ = seconds;
  watchSurges(from);
  look();
}

void Device::look() {
  const SiteValues line = lineValues();
  watchVoltage(line);
  watchLoad(throughOutlets(line));
  energy_.setPower(now_, throughOutlets(line).watts);
}

void Device::watchVoltage(const SiteValues& seen) {
  const Limits points = limits();
  const Zone next = nextZone(zone_, seen.volts, points, profile_.mainsVolts());
  const Zone before = std::exchange(zone_, next);
  if (worsens(before, next)) recordZone(before, next);
  if (next == Zone::Outage && switches.powerFailHold) wantOn_ = false;
  if (next == Zone::Outage || next == Zone::UnderShutdown || next == Zone::OverShutdown) {
    shutdown_ = true;
  } else if (seen.volts >= points.uvrs && seen.volts <= points.ovrs) {
    shutdown_ = false;
  }
}

// The second line has one class for both ways below and one for both above.
void Device::recordZone(Zone before, Zone next) {
  const bool firstLine = profile_.line == Line::Orvantis;
  switch (next) {
    case Zone::Outage:
      return record(Event::Outage);
    case Zone::UnderShutdown:
      if (firstLine || before != Zone::UnderRecord) record(Event::UnderShutdown);
      return;
    case Zone::UnderRecord:
      return record(Event::UnderRecord);
    case Zone::OverRecord:
      return record(Event::OverRecord);
    case Zone::OverShutdown:
      if (firstLine || before != Zone::OverRecord) record(Event::OverShutdown);
      return;
    case Zone::Normal:
      return;
  }
}

void Device::watchLoad(const SiteValues& seen) {
  if (profile_.line == Line::Tessara) return;
  const bool over = seen.amps > registers.overload;
  if (over && !overloaded_) {
    overloadStart_ = now_;
    record(Event::Overload);
  }
  overloaded_ = over;
  if (over && switches.overloadShutdown && now_ - overloadStart_ >= kOverloadSeconds) wantOn_ = false;
}

void Device::watchSurges(double from) {
  if (held_.volts) return;
  for (const Disturbance& disturbance :
       site_.disturbances(std::nextafter(from, now_), std::nextafter(now_, now_ + 1))) {
    if (disturbance.kind == Disturbance::Kind::Surge) record(Event::Surge);
  }
}

void Device::record(Event event) {
  auto& count = counts_[static_cast<std::size_t>(event)];
  count = std::min<std::uint32_t>(count + 1, 0xFFFF);
  if (const auto shown = imageEvent(event); shown && profile_.line == Line::Tessara) {
    image.record(*shown, secondsSinceEvent());
  }
  lastEvent_ = now_;
}

std::int64_t Device::secondsSinceEvent() const {
  return wholeSeconds(now_) - wholeSeconds(lastEvent_);
}

void Device::clearCounts() {
  counts_.fill(0);
  image.clear();
  lastEvent_ = now_;
}

Limits Device::limits() const {
  return profile_.line == Line::Orvantis ? limitsOf(registers, profile_.rating)
                                         : limitsOf(image.limits(), profile_.rating);
}

SiteValues Device::lineValues() const {
  SiteValues seen = site_.at(now_, !held_.volts);
  seen.volts = held_.volts.value_or(seen.volts);
  seen.neutralGroundVolts = held_.neutralGroundVolts.value_or(seen.neutralGroundVolts);
  seen.hertz = held_.hertz.value_or(seen.hertz);
  seen.powerFactor = held_.powerFactor.value_or(seen.powerFactor);
  seen.reactive = held_.reactive.value_or(seen.reactive);
  seen.crestFactor = held_.crestFactor.value_or(seen.crestFactor);
  return seen;
}

SiteValues Device::throughOutlets(SiteValues line) const {
  const bool powered = letter(line) == '1';
  line.amps = held_.amps.value_or(powered ? line.amps : 0.0);
  line.watts = held_.watts.value_or(line.volts * line.amps * line.powerFactor);
  return line;
}

SiteValues Device::values() const {
  return throughOutlets(lineValues());
}

void Device::hold(const Held& held) {
  held_ = held;
  look();
}

void Device::switchOutlets(bool on) {
  wantOn_ = on;
  cycleEnd_ = now_;
}

void Device::cycleOutlets() {
  wantOn_ = true;
  cycleEnd_ = now_ + options_.cycleSeconds;
}

char Device::letter(const SiteValues& line) const {
  if (forcedFault_ != 0) return forcedFault_;
  if (switches.groundDetection && line.neutralGroundVolts > kGroundFaultVolts) return 'G';
  if (zone_ == Zone::Outage) return '0';
  if (shutdown_) return 'V';
  if (cycling()) return 'C';
  return wantOn_ ? '1' : '0';
}

char Device::outletLetter() const {
  return letter(lineValues());
}

void Device::setEnergy(double kilowattHours) {
  energy_.setTotal(now_, kilowattHours);
  energySince_ = clock();
}

int Device::sample(double mean) {
  constexpr double kGoldenRatio = 0.6180339887498949;
  dither_ = std::fmod(dither_ + kGoldenRatio, 1.0);
  return static_cast<int>(std::floor(mean + dither_));
}

}  // namespace zephon::simulator
