#include "simulator/site.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "simulator/noise.h"

namespace zephon::simulator {
namespace {

constexpr double kTurn = 6.283185307179586;
constexpr double kSecondsPerDay = 86400.0;
constexpr double kSiteHoursWest = 6.0;  // of Greenwich, for the pattern of the day

// Time is cut in slots that hold at most one disturbance each, which also ends in its slot.
constexpr double kSlotSeconds = 600.0;

// Streams of random numbers below 100; an appliance's stream is 100 and its place in the table.
enum Stream {
  kKind = 1,
  kStart,
  kLength,
  kLevel,
  kVoltsSlow,
  kVoltsFast,
  kHertz,
  kNeutral,
  kCrest,
  kAmps,
  kAppliance = 100
};

struct Appliance {
  double amps;
  double powerFactor;  // negative: capacitive
  double slotSeconds;  // it may switch at the slots' borders
  double byDay;        // share of the slots in which it runs
  double byNight;
};

constexpr std::array<Appliance, 5> kAppliances = {{
    {1.3, -0.93, 86400.0, 1.0, 1.0},  // electronics, always on
    {1.8, 0.98, 1800.0, 0.85, 0.15},  // lights
    {3.2, 0.78, 420.0, 0.40, 0.30},   // refrigerator
    {4.1, 0.85, 900.0, 0.50, 0.20},   // air handler
    {5.5, 1.00, 25.0, 0.12, 0.00},    // printer
}};

// Kinds of disturbances: the share of the slots that have one, the span of lengths and of levels.
struct Habit {
  Disturbance::Kind kind;
  double share;
  double shortest, longest;
  double lowest, highest;
};

constexpr std::array<Habit, 6> kHabits = {{
    {Disturbance::Kind::Sag, 0.09, 0.3, 6.0, 0.70, 0.86},
    {Disturbance::Kind::Sag, 0.02, 0.2, 2.0, 0.35, 0.65},
    {Disturbance::Kind::Swell, 0.05, 0.2, 3.0, 1.14, 1.32},
    {Disturbance::Kind::Surge, 0.06, 0.001, 0.001, 0.0, 0.0},
    {Disturbance::Kind::Overload, 0.02, 5.0, 25.0, 14.0, 22.0},
    {Disturbance::Kind::Outage, 0.01, 3.0, 45.0, 0.0, 0.0},
}};

double between(double low, double high, double share) {
  return low + (high - low) * share;
}

bool lasts(const Disturbance& disturbance, double seconds) {
  return disturbance.start <= seconds && seconds < disturbance.start + disturbance.seconds;
}

double hourOfDay(std::int64_t unixStart, double seconds) {
  const double day =
      std::fmod(static_cast<double>(unixStart) + seconds - kSiteHoursWest * 3600.0, kSecondsPerDay);
  return (day < 0 ? day + kSecondsPerDay : day) / 3600.0;
}

// In-phase and reactive amps.
struct Load {
  double real = 0;
  double reactive = 0;  // positive: inductive

  void add(double amps, double powerFactor) {
    real += amps * std::abs(powerFactor);
    reactive += std::copysign(amps * std::sqrt(1.0 - powerFactor * powerFactor), powerFactor);
  }
};

Load loadAt(std::uint64_t seed, double seconds, double hour) {
  Load load;
  for (std::size_t i = 0; i < kAppliances.size(); ++i) {
    const Appliance& appliance = kAppliances[i];
    const auto slot = static_cast<std::int64_t>(std::floor(seconds / appliance.slotSeconds));
    const double share = hour >= 7 && hour < 20 ? appliance.byDay : appliance.byNight;
    if (chance(seed, kAppliance + static_cast<int>(i), slot) < share)
      load.add(appliance.amps, appliance.powerFactor);
  }
  return load;
}

}  // namespace

double Site::quietVolts(double seconds) const {
  const double hour = hourOfDay(place_.unixStart, seconds);
  const double daily = 0.012 * std::cos(kTurn * (hour - 3.0) / 24.0);
  const double slow = 0.008 * wander(place_.seed, kVoltsSlow, seconds, 180.0);
  const double fast = 0.002 * wander(place_.seed, kVoltsFast, seconds, 2.0);
  return place_.volts * (1.0 + daily + slow + fast);
}

SiteValues Site::at(double seconds, bool disturbed) const {
  SiteValues values;
  Load load = loadAt(place_.seed, seconds, hourOfDay(place_.unixStart, seconds));
  double factor = 1.0;
  for (const Disturbance& disturbance : near(seconds, seconds)) {
    if (!disturbed || !lasts(disturbance, seconds)) continue;
    using Kind = Disturbance::Kind;
    if (disturbance.kind == Kind::Overload) load.add(disturbance.level, 0.8);
    if (disturbance.kind == Kind::Outage) factor = 0.0;
    if (disturbance.kind == Kind::Sag || disturbance.kind == Kind::Swell) factor *= disturbance.level;
  }
  if (factor == 0.0) return values;

  const double flicker = 1.0 + 0.01 * wander(place_.seed, kAmps, seconds, 1.0);
  const double apparent = std::hypot(load.real, load.reactive);
  values.amps = apparent * factor * flicker;
  values.powerFactor = apparent == 0.0 ? 1.0 : load.real / apparent;
  values.reactive = load.reactive > 0.0 ? 'L' : load.reactive < 0.0 ? 'C' : ' ';
  values.volts = quietVolts(seconds) * factor - 0.08 * values.amps;
  values.watts = values.volts * values.amps * values.powerFactor;
  values.neutralGroundVolts = 0.15 + 0.06 * values.amps + 0.05 * wander(place_.seed, kNeutral, seconds, 3.0);
  values.hertz = place_.hertz + 0.03 * wander(place_.seed, kHertz, seconds, 20.0);
  values.crestFactor = 1.405 + 0.015 * wander(place_.seed, kCrest, seconds, 30.0);
  return values;
}

std::optional<Disturbance> Site::disturbanceOfSlot(std::int64_t slot) const {
  double pick = chance(place_.seed, kKind, slot);
  for (const Habit& habit : kHabits) {
    if (pick >= habit.share) {
      pick -= habit.share;
      continue;
    }
    const double start = between(0.05, 0.85, chance(place_.seed, kStart, slot)) * kSlotSeconds;
    return Disturbance{habit.kind, static_cast<double>(slot) * kSlotSeconds + start,
                       between(habit.shortest, habit.longest, chance(place_.seed, kLength, slot)),
                       between(habit.lowest, habit.highest, chance(place_.seed, kLevel, slot))};
  }
  return std::nullopt;
}

std::vector<Disturbance> Site::near(double from, double to) const {
  std::vector<Disturbance> found = added_;
  if (!place_.disturbances) return found;
  const auto last = static_cast<std::int64_t>(std::floor(to / kSlotSeconds));
  for (auto slot = static_cast<std::int64_t>(std::floor(from / kSlotSeconds)); slot <= last; ++slot) {
    if (const auto disturbance = disturbanceOfSlot(slot)) found.push_back(*disturbance);
  }
  return found;
}

std::vector<Disturbance> Site::disturbances(double from, double to) const {
  std::vector<Disturbance> found = near(from, to);
  std::erase_if(found, [&](const Disturbance& d) { return d.start < from || d.start >= to; });
  std::sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.start < b.start; });
  return found;
}

double Site::nextChange(double seconds, double horizon) const {
  double next = horizon;
  for (const Disturbance& disturbance : near(seconds, horizon)) {
    for (const double moment : {disturbance.start, disturbance.start + disturbance.seconds}) {
      if (moment > seconds) next = std::min(next, moment);
    }
  }
  return next;
}

}  // namespace zephon::simulator
