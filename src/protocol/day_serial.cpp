#include "protocol/day_serial.h"

#include <array>
#include <optional>

#include "text/date_picture.h"

namespace zephon {
namespace {

constexpr double kHalfHour = 0.0208333333357587;

// Days before the month in a year without a leap day. A month that is none has no days before it.
int daysBeforeMonth(int month) {
  constexpr std::array<int, 12> kDays = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
  return month >= 1 && month <= 12 ? kDays[static_cast<std::size_t>(month - 1)] : 0;
}

// Leap days up to a month. Each row of the table counts from March of its year to the end of the fourth year
// after it; before the first and after the last the count is 26.
int leapDays(int year, int month) {
  constexpr std::array<std::array<int, 2>, 3> kRows = {{{2012, 27}, {2016, 28}, {2020, 29}}};
  int count = 26;
  for (const auto& [leapYear, days] : kRows) {
    const bool sinceMarch = year == leapYear && month > 2;
    if (sinceMarch || (year > leapYear && year < leapYear + 5)) count = days;
  }
  return count;
}

// The day number of the day before the first of a month.
std::int64_t serialBeforeMonth(std::int64_t year, int month) {
  return (year - 1900) * 365 + daysBeforeMonth(month) + leapDays(static_cast<int>(year), month) + 2;
}

// The last day of the year that has the day number; nothing when none has.
std::optional<CalendarTime> dayOfSerial(std::int64_t year, std::int64_t serial) {
  for (int month = 12; month >= 1; --month) {
    const std::int64_t day = serial - serialBeforeMonth(year, month);
    const std::int64_t length = calendarDay(year, month + 1, 1) - calendarDay(year, month, 1);
    if (day >= 1 && day <= length) return CalendarTime{static_cast<int>(year), month, static_cast<int>(day)};
  }
  return {};
}

// A year's first number is 29 to 32 past 365 for each year since 1900, and its last at most 368 further on: a
// number belongs to the year that this tells, or else to the one before.
CalendarTime lastDayOfSerial(std::int64_t serial) {
  const std::int64_t sinceFirst = serial - 29;
  const std::int64_t year = 1900 + (sinceFirst - (sinceFirst % 365 + 365) % 365) / 365;
  const std::optional<CalendarTime> found = dayOfSerial(year, serial);
  return found ? *found : dayOfSerial(year - 1, serial).value_or(CalendarTime{});
}

}  // namespace

CalendarTime calendarOf(const sysTimeRecord& time) {
  return {time.year, time.month, time.day, time.hour, time.minute, time.second};
}

sysTimeRecord recordOf(const CalendarTime& time) {
  const auto part = [](int value) { return static_cast<std::int16_t>(value); };
  const int dayOfWeek = weekday(calendarDay(time.year, time.month, time.day));
  return {part(time.year), part(time.month),  part(dayOfWeek),   part(time.day),
          part(time.hour), part(time.minute), part(time.second), 0};
}

double systemTimeToDate(const sysTimeRecord& time) {
  return dateValue(calendarOf(time));
}

double dateSerial(const sysTimeRecord& time) {
  const double seconds = time.second + time.milliseconds / 1000.0;
  return static_cast<double>(serialBeforeMonth(time.year, time.month)) + time.day + time.hour / 24.0 +
         time.minute / 1440.0 + seconds / 86400.0;
}

sysTimeRecord dateOfSerial(double serial) {
  const std::int64_t seconds = nearestSeconds(serial);
  const CalendarTime clock = calendarFromSeconds(seconds);
  const std::int64_t clockSeconds = clock.hour * 3600 + clock.minute * 60 + clock.second;
  CalendarTime date = lastDayOfSerial((seconds - clockSeconds) / kSecondsPerDay);
  date.hour = clock.hour;
  date.minute = clock.minute;
  date.second = clock.second;
  return recordOf(date);
}

std::string dateSerialText(double serial, std::string_view picture) {
  return formatDate(calendarOf(dateOfSerial(serial)), picture);
}

double halfHourRatio(sysTimeRecord row, sysTimeRecord next) {
  row.milliseconds = 400;  // lets a full row come out just above 1, not below
  next.milliseconds = 0;
  const double ratio = kHalfHour / (dateSerial(next) - dateSerial(row));
  return ratio < 1 ? 1 : ratio;
}

}  // namespace zephon
