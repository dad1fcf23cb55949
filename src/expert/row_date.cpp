#include "expert/row_date.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "protocol/device_date.h"
#include "text/picture.h"

namespace zephon {
namespace {

constexpr std::size_t kYear = 0, kDay = 1, kMonth = 2, kHour = 3, kMinute = 4, kSecond = 5;
constexpr std::size_t kDateColumns = 6;

std::string two(double value) {
  return formatPicture(value, "00");
}

bool isTwoDigits(double value) {
  return value >= 0 && value <= 99 && value == std::trunc(value);
}

}  // namespace

std::string rowDateText(const LogView& log, std::size_t row) {
  return two(log.at(kHour, row)) + ':' + two(log.at(kMinute, row)) + ':' + two(log.at(kSecond, row)) + ' ' +
         rowDay(log, row);
}

std::string rowDay(const LogView& log, std::size_t row) {
  return two(log.at(kMonth, row)) + '/' + two(log.at(kDay, row)) + "/20" + two(log.at(kYear, row));
}

// Fields of two digits stand where they are read, so the text can be left out.
std::optional<sysTimeRecord> rowDate(const LogView& log, std::size_t row) {
  std::array<double, kDateColumns> columns{};
  for (std::size_t c = 0; c < kDateColumns; ++c) columns[c] = log.at(c, row);
  if (std::all_of(columns.begin(), columns.end(), isTwoDigits)) {
    const auto part = [&](std::size_t column) { return static_cast<std::int16_t>(columns[column]); };
    const auto year = static_cast<std::int16_t>(2000 + part(kYear));
    return sysTimeRecord{year, part(kMonth), 0, part(kDay), part(kHour), part(kMinute), part(kSecond), 0};
  }
  if (!std::all_of(columns.begin(), columns.end(), [](double value) { return std::isfinite(value); }))
    return {};
  return deviceDateFields(rowDateText(log, row));
}

}  // namespace zephon
