#include "text/calendar.h"

#include <algorithm>
#include <cmath>

namespace zephon {
namespace {

constexpr std::int64_t floorDivide(std::int64_t value, std::int64_t by) {
  const std::int64_t quotient = value / by;
  return value % by < 0 ? quotient - 1 : quotient;
}

constexpr std::int64_t floorRest(std::int64_t value, std::int64_t by) {
  return value - floorDivide(value, by) * by;
}

// Days before the first of a month in a year that starts with March: the months' lengths repeat every five
// months, 153 days.
constexpr std::int64_t daysBeforeMonth(std::int64_t fromMarch) {
  return (153 * fromMarch + 2) / 5;
}

// Days before the first of March of a year, counted from year 0.
constexpr std::int64_t daysBeforeYear(std::int64_t year) {
  return 365 * year + floorDivide(year, 4) - floorDivide(year, 100) + floorDivide(year, 400);
}

// 1899-12-30 as a day since 0000-03-01.
constexpr std::int64_t kDayZero = 693899;

// The year, starting with March, of a day since 0000-03-01.
std::int64_t marchYear(std::int64_t day) {
  std::int64_t year = floorDivide(day * 400, 146097) + 1;
  while (daysBeforeYear(year) > day) --year;
  return year;
}

constexpr std::int64_t dayOf(std::int64_t year, std::int64_t month, std::int64_t day) {
  const std::int64_t months = year * 12 + month - 3;  // since March of year 0
  return daysBeforeYear(floorDivide(months, 12)) + daysBeforeMonth(floorRest(months, 12)) + day - 1 -
         kDayZero;
}

constexpr std::int64_t kFirstSecond = dayOf(-9999, 1, 1) * kSecondsPerDay;
constexpr std::int64_t kLastSecond = dayOf(10000, 1, 1) * kSecondsPerDay - 1;

}  // namespace

std::int64_t calendarDay(std::int64_t year, std::int64_t month, std::int64_t day) {
  return dayOf(year, month, day);
}

std::int64_t calendarSeconds(const CalendarTime& time) {
  return dayOf(time.year, time.month, time.day) * kSecondsPerDay + time.hour * std::int64_t{3600} +
         time.minute * std::int64_t{60} + time.second;
}

CalendarTime calendarFromSeconds(std::int64_t seconds) {
  seconds = std::clamp(seconds, kFirstSecond, kLastSecond);
  const std::int64_t day = floorDivide(seconds, kSecondsPerDay) + kDayZero;
  const int rest = static_cast<int>(floorRest(seconds, kSecondsPerDay));
  const std::int64_t year = marchYear(day);
  const std::int64_t dayOfYear = day - daysBeforeYear(year);
  const std::int64_t fromMarch = (5 * dayOfYear + 2) / 153;
  const std::int64_t months = year * 12 + fromMarch + 2;  // since January of year 0
  return {static_cast<int>(floorDivide(months, 12)),
          static_cast<int>(floorRest(months, 12) + 1),
          static_cast<int>(dayOfYear - daysBeforeMonth(fromMarch) + 1),
          rest / 3600,
          rest / 60 % 60,
          rest % 60};
}

double dateValue(const CalendarTime& time) {
  const std::int64_t seconds = calendarSeconds(time);
  return static_cast<double>(floorDivide(seconds, kSecondsPerDay)) +
         static_cast<double>(floorRest(seconds, kSecondsPerDay)) / kSecondsPerDay;
}

std::int64_t nearestSeconds(double value) {
  if (std::isnan(value)) return 0;
  const double seconds = std::round(value * kSecondsPerDay);
  return static_cast<std::int64_t>(
      std::clamp(seconds, static_cast<double>(kFirstSecond), static_cast<double>(kLastSecond)));
}

CalendarTime calendarFromValue(double value) {
  return calendarFromSeconds(nearestSeconds(value));
}

int weekday(std::int64_t day) {
  return static_cast<int>(floorRest(day + 6, 7));
}

int weekdayOfValue(double value) {
  return weekday(floorDivide(nearestSeconds(value), kSecondsPerDay));
}

}  // namespace zephon
