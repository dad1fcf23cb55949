#include "simulator/device.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace zephon::simulator {
namespace {

constexpr double kLookSeconds = 60.0;
constexpr double kOverloadSeconds = 10.0;
constexpr double kGroundFaultVolts = 30.0;
constexpr std::int64_t kHalfHour = 1800;

Site::Place placeOf(const Profile& profile, const Options& options) {
  return {options.seed,
          profile.mainsVolts(),
          profile.mainsHertz(),
          options.unixStart,
          options.disturbances,
          options.site,
          static_cast<double>(profile.rating)};
}

std::int64_t wholeSeconds(double seconds) {
  return static_cast<std::int64_t>(std::floor(seconds));
}

// A device with a past was put up at a full or half hour.
double pastOf(const Options& options) {
  if (options.pastSeconds <= 0) return 0.0;
  const auto past = wholeSeconds(options.pastSeconds);
  return static_cast<double>(past + ((options.unixStart - past) % kHalfHour + kHalfHour) % kHalfHour);
}

struct ZoneEvent {
  Zone zone;
  Event event;
};

// The deepest of each side first: in this order they end.
constexpr std::array<ZoneEvent, 5> kZoneEvents = {{
    {Zone::Outage, Event::Outage},
    {Zone::UnderShutdown, Event::UnderShutdown},
    {Zone::UnderRecord, Event::UnderRecord},
    {Zone::OverShutdown, Event::OverShutdown},
    {Zone::OverRecord, Event::OverRecord},
}};

}  // namespace

Device::Device(const Profile& profile, const Options& options)
    : registers(factoryRegisters(profile.rating)),
      image(factoryBytes(profile.rating)),
      userId(fitted(profile.userId, 10)),
      centreTapped(profile.knowsWiring() && profile.mainsVolts() >= 220),
      events(profile.rating),
      history(profile.rating),
      chart(profile.chartMemory),
      profile_(profile),
      options_(options),
      site_(placeOf(profile, options)),
      now_(-pastOf(options)),
      cycleEnd_(now_),
      lastEvent_(now_),
      scope_(options.paced ? 10.0 / profile.baud() : 0.0),
      clock_(options.unixStart),
      energy_(now_) {
  switches.overloadShutdown = site_.manner().restartSeconds > 0;
  energySince_ = clock();
  look();
  if (options.recordingHours > 0) {
    advanceTo(std::min(0.0, -options.recordingHours * 3600.0));
    startChart();
  }
  advanceTo(0);
}

void Device::advanceTo(double seconds) {
  while (now_ < seconds) {
    const double nextLook = site_.nextChange(now_, nextOwnMoment());
    const double next = std::min(nextLook, chart.nextSample());
    if (next > seconds) {
      now_ = seconds;
      return;
    }
    if (next == nextLook) {
      step(next);
    } else {
      now_ = next;
    }
    takeDueSample();
  }
}

// A sample for the chart is no look at the line: a recording changes neither what is counted nor the rows.
void Device::takeDueSample() {
  if (now_ < chart.nextSample()) return;
  chart.sample(values(), kilowattHours());
  switches.chartMemory = chart.recording();
}

double Device::nextOwnMoment() const {
  double next = (std::floor(now_ / kLookSeconds) + 1.0) * kLookSeconds;
  for (const double moment : {cycleEnd_, overloadStart_ + kOverloadSeconds, restartAt_, writer_.endOfRow()}) {
    if (moment > now_) next = std::min(next, moment);
  }
  return next;
}

void Device::step(double seconds) {
  const double from = now_;
  now_ = seconds;
  watchSurges(from);
  look();
}

void Device::look() {
  if (now_ >= restartAt_) switchOutlets(true);
  const SiteValues line = lineValues();
  watchVoltage(line);
  watchLoad(throughOutlets(line));
  const SiteValues seen = throughOutlets(line);
  energy_.setPower(now_, seen.watts);
  if (firstLine()) writer_.see(now_, clock_, seen, zone_ != Zone::Outage);
}

void Device::watchVoltage(const SiteValues& seen) {
  const Limits points = limits();
  const Zone next = nextZone(zone_, seen.volts, points, profile_.mainsVolts());
  const Zone before = std::exchange(zone_, next);
  for (const ZoneEvent& row : kZoneEvents) {
    if (!reaches(next, row.zone)) events.end(row.event, clock());
  }
  if (worsens(before, next)) recordZone(before, next, seen);
  if (next == Zone::Outage && switches.powerFailHold) wantOn_ = false;
  if (next == Zone::Outage || next == Zone::UnderShutdown || next == Zone::OverShutdown) {
    shutdown_ = true;
  } else if (seen.volts >= points.uvrs && seen.volts <= points.ovrs) {
    shutdown_ = false;
  }
}

// The second line has one class for both ways below and one for both above.
void Device::recordZone(Zone before, Zone next, const SiteValues& seen) {
  const bool deeper =
      before != Zone::Normal && before > Zone::Outage && next > Zone::Outage && reaches(next, before);
  if (deeper && !firstLine()) return;
  for (const ZoneEvent& row : kZoneEvents) {
    if (row.zone == next) record(row.event, seen);
  }
}

void Device::watchLoad(const SiteValues& seen) {
  if (!firstLine()) return;
  const bool over = seen.amps > registers.overload;
  if (over && !overloaded_) {
    overloadStart_ = now_;
    record(Event::Overload, seen);
  }
  if (!over) events.end(Event::Overload, clock());
  overloaded_ = over;
  if (over && switches.overloadShutdown && now_ >= overloadStart_ + kOverloadSeconds) shutForOverload();
}

void Device::shutForOverload() {
  switchOutlets(false);
  overloaded_ = false;
  events.end(Event::Overload, clock());
  const double restart = site_.manner().restartSeconds;
  if (restart > 0) restartAt_ = now_ + restart;
}

void Device::watchSurges(double from) {
  if (held_.volts) return;
  for (const Disturbance& disturbance :
       site_.disturbances(std::nextafter(from, now_), std::nextafter(now_, now_ + 1))) {
    if (disturbance.kind != Disturbance::Kind::Surge) continue;
    record(Event::Surge, {});
    events.end(Event::Surge, clock());
  }
}

void Device::record(Event event, const SiteValues& seen) {
  auto& count = counts_[static_cast<std::size_t>(event)];
  count = std::min<std::uint32_t>(count + 1, 0xFFFF);
  if (firstLine()) {
    events.begin(event, clock(), seen);
  } else if (const auto shown = imageEvent(event)) {
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
  return firstLine() ? limitsOf(registers, profile_.rating) : limitsOf(image.limits(), profile_.rating);
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
  restartAt_ = kNever;
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

void Device::clearHistory() {
  history.clear(now_, clock());
  look();
}

void Device::startChart() {
  chart.start(now_, clock());
  switches.chartMemory = chart.recording();
}

std::string Device::scopeBlock(const ScopeKind& kind) {
  const SiteValues seen = values();
  return scope_.block(kind, options_.waveform.value_or(waveformOf(seen)), seen, now_);
}

void Device::setClock(std::int64_t unixSeconds) {
  clock_.set(now_, unixSeconds);
  writer_.clockSet(now_, clock_);
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
