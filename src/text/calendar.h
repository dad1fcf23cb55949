#pragma once

#include <cstdint>

namespace zephon {

// A calendar moment of the Gregorian calendar, carried back before its time by the same rules. Parts out of
// range carry: month 13 is January of the next year, month 0 day 0 of year 200 the last of November 199.
struct CalendarTime {
  int year = 0;
  int month = 0;
  int day = 0;
  int hour = 0;
  int minute = 0;
  int second = 0;
  bool operator==(const CalendarTime&) const = default;
};

inline constexpr int kSecondsPerDay = 86400;

// Whole days since 1899-12-30, carrying.
std::int64_t calendarDay(std::int64_t year, std::int64_t month, std::int64_t day);

// Seconds since 1899-12-30 00:00:00, and back with every part in its range. Back works for the years
// -9999 to 9999; a number outside gives their first or last second.
std::int64_t calendarSeconds(const CalendarTime& time);
CalendarTime calendarFromSeconds(std::int64_t seconds);

// A date value: whole days since 1899-12-30 plus the fraction of the day. Back to the nearest second;
// what is no number reads as 0.
double dateValue(const CalendarTime& time);
CalendarTime calendarFromValue(double value);
// The seconds since 1899-12-30 that lie nearest to a date value, within the range above.
std::int64_t nearestSeconds(double value);

// Sunday is 0.
int weekday(std::int64_t day);
int weekdayOfValue(double value);

}  // namespace zephon
