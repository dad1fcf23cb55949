#include "simulator/site.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "simulator/noise.h"

namespace zephon::simulator {
namespace {

constexpr double kTurn = 6.283185307179586;
constexpr double kSecondsPerDay = 86400.0;
constexpr double kStorySeconds = 120 * kSecondsPerDay;
constexpr double kLineOhms = 0.08;
constexpr std::uint64_t kStorySeed = 27;
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
  kDays,
  kAppliance = 100
};

double between(double low, double high, double share) {
  return low + (high - low) * share;
}

bool lasts(const Disturbance& disturbance, double seconds) {
  return disturbance.start <= seconds && seconds < disturbance.start + disturbance.seconds;
}

// 0 before the months of a story, 1 at the start, and a quarter more at most after it.
double progressAt(double seconds) {
  return std::clamp(1.0 + seconds / kStorySeconds, 0.0, 1.25);
}

// How much of the amount counts at this hour: it comes and goes within ten minutes.
double during(const DailyHours& hours, double hour) {
  return std::min(std::clamp((hour - hours.from) * 6.0, 0.0, 1.0),
                  std::clamp((hours.to - hour) * 6.0, 0.0, 1.0));
}

bool onSquareWave(double secondOfDay) {
  return std::fmod(secondOfDay, 6 * 3600.0) < 3600.0;
}

}  // namespace

Site::Site(const Place& place) : place_(place), manner_(&mannerOf(place.story)) {
  if (place.disturbances) added_.assign(manner_->single.begin(), manner_->single.end());
}

Site::Moment Site::momentOf(double seconds) const {
  double day =
      std::fmod(static_cast<double>(place_.unixStart) + seconds - kSiteHoursWest * 3600.0, kSecondsPerDay);
  if (day < 0) day += kSecondsPerDay;
  return {manner_->everyDayAlike ? day : seconds, day, day / 3600.0, progressAt(seconds)};
}

void Site::Load::add(double amps, double powerFactor) {
  real += amps * std::abs(powerFactor);
  reactive += std::copysign(amps * std::sqrt(1.0 - powerFactor * powerFactor), powerFactor);
}

Site::Load Site::loadAt(const Moment& moment) const {
  Load load;
  const double share = manner_->load.at(moment.progress);
  for (std::size_t i = 0; i < manner_->appliances.size(); ++i) {
    const Appliance& appliance = manner_->appliances[i];
    const auto slot = static_cast<std::int64_t>(std::floor(moment.chance / appliance.slotSeconds));
    const double often = moment.hour >= 7 && moment.hour < 20 ? appliance.byDay : appliance.byNight;
    const bool runs = appliance.clockwork
                          ? slot % 2 == 0
                          : chance(place_.seed, kAppliance + static_cast<int>(i), slot) < often;
    if (runs) load.add(appliance.amps * share, appliance.powerFactor);
  }
  for (const DailyHours& peak : manner_->peaks)
    load.add(peak.amount.at(moment.progress) * during(peak, moment.hour), 1.0);
  return load;
}

double Site::quietVolts(const Moment& moment) const {
  const Manner& manner = *manner_;
  double share = 1.0 + manner.daily * std::cos(kTurn * (moment.hour - 3.0) / 24.0) +
                 manner.slow * wander(place_.seed, kVoltsSlow, moment.chance, 180.0) +
                 manner.fast * wander(place_.seed, kVoltsFast, moment.chance, 2.0);
  for (const DailyHours& dip : manner.dips)
    share *= 1.0 - dip.amount.at(moment.progress) * during(dip, moment.hour);
  return place_.volts * manner.level.at(moment.progress) * share;
}

SiteValues Site::at(double seconds, bool disturbed) const {
  const Moment moment = momentOf(seconds);
  const std::uint64_t seed = place_.seed;
  SiteValues values;
  Load load = loadAt(moment);
  double factor = 1.0;
  forEachNear(seconds, seconds, [&](const Disturbance& disturbance) {
    if (!disturbed || !lasts(disturbance, seconds)) return;
    using Kind = Disturbance::Kind;
    if (disturbance.kind == Kind::Overload) load.add(disturbance.level, 0.8);
    if (disturbance.kind == Kind::Outage) factor = 0.0;
    if (disturbance.kind == Kind::Sag || disturbance.kind == Kind::Swell) factor *= disturbance.level;
  });
  if (factor == 0.0) return values;

  const bool square = manner_->squareWave && onSquareWave(moment.day);
  const double quiet = quietVolts(moment);
  const double flicker = 1.0 + 0.01 * wander(seed, kAmps, moment.chance, 1.0);
  const double apparent = std::hypot(load.real, load.reactive);
  values.amps = apparent * factor * flicker * (manner_->samePower ? 120.0 / quiet : 1.0);
  values.powerFactor = apparent == 0.0 ? 1.0 : load.real / apparent;
  values.reactive = load.reactive > 0.0 ? 'L' : load.reactive < 0.0 ? 'C' : ' ';
  values.volts = quiet * factor - kLineOhms * values.amps;
  values.watts = values.volts * values.amps * values.powerFactor;
  values.neutralGroundVolts = 0.15 + 0.06 * values.amps + 0.05 * wander(seed, kNeutral, moment.chance, 3.0);
  values.hertz = place_.hertz + 0.03 * wander(seed, kHertz, moment.chance, 20.0);
  values.crestFactor =
      (square ? 1.0 : manner_->crest) + manner_->crestWander * wander(seed, kCrest, moment.chance, 30.0);
  return values;
}

// Where every day is alike, which slots of a day have a disturbance belongs to the story; chance moves it
// within its slot.
std::optional<Disturbance> Site::disturbanceOfSlot(std::int64_t slot) const {
  if (manner_->habits.empty()) return std::nullopt;
  const double from = static_cast<double>(slot) * kSlotSeconds;
  const Moment moment = momentOf(from);
  double pick = manner_->everyDayAlike
                    ? chance(kStorySeed, kKind, static_cast<std::int64_t>(moment.day / kSlotSeconds))
                    : chance(place_.seed, kKind, slot);
  for (const Habit& habit : manner_->habits) {
    const double share = habit.share * (habit.grows ? moment.progress : 1.0);
    if (pick >= share) {
      pick -= share;
      continue;
    }
    if (habit.days < 1.0 && chance(place_.seed, kDays, slot) >= habit.days) break;
    const double start = from + between(0.05, 0.85, chance(place_.seed, kStart, slot)) * kSlotSeconds;
    const double level = between(habit.lowest, habit.highest, chance(place_.seed, kLevel, slot));
    return Disturbance{habit.kind, start,
                       between(habit.shortest, habit.longest, chance(place_.seed, kLength, slot)),
                       habit.ofRating ? level * place_.rating / quietVolts(momentOf(start)) : level};
  }
  return std::nullopt;
}

template <typename Take>
void Site::forEachNear(double from, double to, const Take& take) const {
  for (const Disturbance& disturbance : added_) take(disturbance);
  if (!place_.disturbances) return;
  const auto last = static_cast<std::int64_t>(std::floor(to / kSlotSeconds));
  for (auto slot = static_cast<std::int64_t>(std::floor(from / kSlotSeconds)); slot <= last; ++slot) {
    if (const auto disturbance = disturbanceOfSlot(slot)) take(*disturbance);
  }
}

std::vector<Disturbance> Site::disturbances(double from, double to) const {
  std::vector<Disturbance> found;
  forEachNear(from, to, [&](const Disturbance& d) {
    if (d.start >= from && d.start < to) found.push_back(d);
  });
  std::sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a.start < b.start; });
  return found;
}

double Site::nextChange(double seconds, double horizon) const {
  double next = horizon;
  forEachNear(seconds, horizon, [&](const Disturbance& disturbance) {
    for (const double moment : {disturbance.start, disturbance.start + disturbance.seconds}) {
      if (moment > seconds) next = std::min(next, moment);
    }
  });
  return next;
}

}  // namespace zephon::simulator
