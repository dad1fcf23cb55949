#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/wall_clock.h"
#include "protocol/day_serial.h"

namespace zephon {

// The device's dates. A device date text is 19 characters, "hh:mm:ss mm/dd/yyyy"; the device's own are
// universal time. Positions are fixed; a year under 1000 may stand with three digits.

// Universal time minus local time, in days: positive west of Greenwich.
struct UtcOffset {
  double days = 0;
};

double gmtOffsetDays(const WallMoment& moment);
inline UtcOffset utcOffset(const WallMoment& moment) {
  return {gmtOffsetDays(moment)};
}

// The fields of a device date text by position, each the number that it starts with: 0 for what is no number,
// or is not there. Day of week and milliseconds are 0. Nothing when a field does not fit 16 bits.
std::optional<sysTimeRecord> deviceDateFields(std::string_view text);

// The same for a text that may be no date at all: nothing unless each of the six fields is a number.
std::optional<sysTimeRecord> plainDeviceDate(std::string_view text);

// The device date text of six fields.
std::string deviceDateText(const sysTimeRecord& time);

// The six date bytes of a device record, as they stand there; the year counts from 2000.
struct DeviceDateBytes {
  std::uint8_t hour = 0;
  std::uint8_t minute = 0;
  std::uint8_t second = 0;
  std::uint8_t month = 0;
  std::uint8_t day = 0;
  std::uint8_t year = 0;
};

// The text of a chart memory mark's date: each byte as its two hex digits, the year with "20" in front.
std::string hexDateText(const DeviceDateBytes& bytes);

// A device date text in universal time as one in local time, the year with four digits. Fields out of range
// carry: year 200, month 0, day 0 is the last of November 199, and "0199" at the end is how a blank record is
// told from a real one. Empty when a field does not fit 16 bits or the local year lies outside 100 to 9999.
std::string localTimeString(std::string_view gmtString, UtcOffset offset);

// Whole days between two device date texts, halves to even. 0 when a field or the result does not fit 16
// bits.
std::int16_t dayDifference(std::string_view startString, std::string_view stopString);
std::int16_t dayDifference(const sysTimeRecord& start, const sysTimeRecord& stop);

// A time of day "hh:mm:ss" less at most 30 minutes, as h:m:s without leading zeros. Hour 1 gives way to 24.
std::string dateTimeCalc(std::string_view startDT, double numMin);

}  // namespace zephon
