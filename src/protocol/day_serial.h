#pragma once

#include <string>
#include <string_view>

#include "platform/wall_clock.h"
#include "text/calendar.h"

namespace zephon {

// The date and time of a record, without day of week and milliseconds, and back: day of week set,
// milliseconds 0. The way back takes years that 16 bits hold.
CalendarTime calendarOf(const sysTimeRecord& time);
sysTimeRecord recordOf(const CalendarTime& time);

// The computer's local date and time.
inline CalendarTime presentTime(const WallClock& clock) {
  return calendarOf(clock.now().local);
}

// The program's day number, by which a chart's rows are ordered, plotted and timed: equals the date value from
// March 2012 to February 2024. It counts leap days by a short table that knows 2012, 2016 and 2020 only, and
// drops them from 2025 on. No date suffers: dateOfSerial, which writes all dates that are seen or saved, counts
// the same way back.
double dateSerial(const sysTimeRecord& time);

// The date of a day number, to the nearest second; day of week is set, milliseconds are 0. Where two dates
// share a number (29 February and 1 March 2024, the last days of 2024 and the first of 2025) the later one is
// meant. A number some ten thousand years off gives the farthest date within them; what is no number, that of
// 0.
sysTimeRecord dateOfSerial(double serial);

// A day number as text through a date picture ("mm/dd/yyyy").
std::string dateSerialText(double serial, std::string_view picture);

// The date value (whole days since 1899-12-30 plus fraction of a day), of whole seconds.
double systemTimeToDate(const sysTimeRecord& time);

// What a half-hour sum is multiplied by when its row, which ends where the next one starts, was cut short:
// half an hour over the row's length, at least 1. The years count in full; day of week and milliseconds are
// not read.
double halfHourRatio(sysTimeRecord row, sysTimeRecord next);

}  // namespace zephon
