#pragma once

#include <cstdint>

#include "protocol/device_date.h"
#include "text/calendar.h"

namespace zephon {

// The local dates of a log's records. Each byte is BCD; the year is "20" and its number without leading zeros,
// so that 0x09 is the year 209 and 0xFF the year 200. Fields out of range carry as in localTimeString. Records
// of one day follow each other, so the calendar is asked once a day.
class LocalClock {
 public:
  explicit LocalClock(UtcOffset offset) : offsetSeconds_(nearestSeconds(offset.days)) {}

  CalendarTime local(const DeviceDateBytes& bytes);

 private:
  std::int64_t offsetSeconds_;
  std::uint32_t knownBytes_ = 0;  // year, month and day byte of the last record
  std::int64_t knownDay_ = 0;     // and the calendar day that they mean
  std::int64_t localDay_ = 0;     // the last record's local day
  CalendarTime localDate_;        // and its date
};

// A record is blank when its local date text ends in "0199": its date bytes read as zeros, month 0 and day 0
// of the year 200.
constexpr bool isBlankDate(const CalendarTime& local) {
  return local.year == 199;
}

}  // namespace zephon
