#include "protocol/device_date.h"

#include <array>

#include "protocol/encodings.h"
#include "text/number.h"
#include "text/picture.h"
#include "text/strings.h"

namespace zephon {
namespace {

// Where a field stands in a device date text, counted from 0, and where it goes.
struct Field {
  std::size_t offset;
  std::size_t length;
  std::int16_t sysTimeRecord::*part;
};

constexpr std::array<Field, 6> kFields = {{{0, 2, &sysTimeRecord::hour},
                                           {3, 2, &sysTimeRecord::minute},
                                           {6, 2, &sysTimeRecord::second},
                                           {9, 2, &sysTimeRecord::month},
                                           {12, 2, &sysTimeRecord::day},
                                           {15, 4, &sysTimeRecord::year}}};

// Local dates lie in the years 100 to 9999.
const std::int64_t kFirstLocal = calendarSeconds({100, 1, 1});
const std::int64_t kLastLocal = calendarSeconds({9999, 12, 31, 23, 59, 59});

// The device date text of its six parts, in their order there.
std::string joined(const std::array<std::string, 6>& parts) {
  constexpr std::string_view kSeparators = ":: //";
  std::string text = parts[0];
  for (std::size_t i = 1; i < parts.size(); ++i) {
    text += kSeparators[i - 1];
    text += parts[i];
  }
  return text;
}

std::string two(int value) {
  return padded(value, 2);
}

std::string hexByte(std::uint8_t byte) {
  const char character = static_cast<char>(byte);
  return ascii2hex({&character, 1});
}

}  // namespace

double gmtOffsetDays(const WallMoment& moment) {
  const std::int64_t seconds =
      calendarSeconds(calendarOf(moment.utc)) - calendarSeconds(calendarOf(moment.local));
  return static_cast<double>(seconds) / kSecondsPerDay;
}

std::optional<sysTimeRecord> deviceDateFields(std::string_view text) {
  sysTimeRecord time;
  for (const Field& field : kFields) {
    const std::optional<std::int16_t> value =
        toInt16(numberAtStart(partOf(text, field.offset, field.length)));
    if (!value) return {};
    time.*field.part = *value;
  }
  return time;
}

std::optional<sysTimeRecord> plainDeviceDate(std::string_view text) {
  for (const Field& field : kFields) {
    if (!wholeNumber(partOf(text, field.offset, field.length))) return {};
  }
  return deviceDateFields(text);
}

std::string deviceDateText(const sysTimeRecord& time) {
  return joined({two(time.hour), two(time.minute), two(time.second), two(time.month), two(time.day),
                 padded(time.year, 4)});
}

std::string hexDateText(const DeviceDateBytes& bytes) {
  return joined({hexByte(bytes.hour), hexByte(bytes.minute), hexByte(bytes.second), hexByte(bytes.month),
                 hexByte(bytes.day), "20" + hexByte(bytes.year)});
}

std::string localTimeString(std::string_view gmtString, UtcOffset offset) {
  const std::optional<sysTimeRecord> universal = deviceDateFields(gmtString);
  if (!universal) return {};
  const std::int64_t local = calendarSeconds(calendarOf(*universal)) - nearestSeconds(offset.days);
  if (local < kFirstLocal || local > kLastLocal) return {};
  return deviceDateText(recordOf(calendarFromSeconds(local)));
}

std::int16_t dayDifference(std::string_view startString, std::string_view stopString) {
  const std::optional<sysTimeRecord> start = deviceDateFields(startString);
  const std::optional<sysTimeRecord> stop = deviceDateFields(stopString);
  return start && stop ? dayDifference(*start, *stop) : std::int16_t{0};
}

std::int16_t dayDifference(const sysTimeRecord& start, const sysTimeRecord& stop) {
  return toInt16(dateSerial(stop) - dateSerial(start)).value_or(0);
}

std::string dateTimeCalc(std::string_view startDT, double numMin) {
  double hours = numberAtStart(partOf(startDT, 0, 2));
  double minutes = numberAtStart(partOf(startDT, 3, 2));
  const double seconds = numberAtStart(partOf(startDT, 6, 2));
  if (minutes < 30) {
    hours = hours > 1 ? hours - 1 : 24;
    minutes += 60;
  }
  return shortestText(hours) + ':' + shortestText(minutes - numMin) + ':' + shortestText(seconds);
}

}  // namespace zephon
