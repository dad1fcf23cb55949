#pragma once

#include "form/logs.h"
#include "protocol/day_serial.h"
#include "protocol/device_date.h"
#include "protocol/encodings.h"
#include "text/number.h"
#include "text/picture.h"
#include "text/strings.h"

// The logs decoded the long way, through texts at every step and with bytes really taken out: what the quick
// decoders are held against.
namespace zephon::testing_support {

using Text = std::string;

inline double numberOf(const Text& text) {
  return numberAtStart(text);
}

inline double throughPicture(double value, const char* picture) {
  return numberOf(formatPicture(value, picture));
}

inline DeviceDateBytes dateBytes(const Text& yearDayMonthSecondMinuteHour) {
  const auto at = [&](std::size_t i) { return static_cast<std::uint8_t>(yearDayMonthSecondMinuteHour[i]); };
  return {at(5), at(4), at(3), at(2), at(1), at(0)};
}

// Each record's local date text and bytes, blank ones taken out.
inline std::vector<std::pair<Text, Text>> slowRecords(Text data, std::size_t size, std::size_t datePlace,
                                                      std::size_t count, UtcOffset offset) {
  std::vector<std::pair<Text, Text>> records;
  while (records.size() < count) {
    const Text record = data.substr(records.size() * size, size);
    const Text local = localTimeString(bcdDateText(dateBytes(record.substr(datePlace, 6))), offset);
    if (lastOf(local, 4) != "0199") {
      records.emplace_back(local, record);
      continue;
    }
    const std::size_t blank = data.find(Text(size, '\xFF'));
    if (blank != Text::npos) data.erase(blank, size);
    --count;
  }
  return records;
}

template <std::size_t N>
std::array<double, N> slowDate(const Text& local) {
  const auto at = [&](std::size_t place) { return numberOf(local.substr(place - 1, 2)); };
  return {at(18), at(13), at(10), at(1), at(4), at(7)};
}

inline LogTable<8> slowEvents(const Text& frame, std::size_t count, int volts, UtcOffset offset) {
  LogTable<8> rows;
  for (const auto& [local, record] : slowRecords(frame.substr(4), 8, 1, count, offset)) {
    auto row = slowDate<8>(local);
    row[6] = decodeDecimal(record.substr(0, 1));
    row[7] = decodeDecimal(record.substr(7, 1)) * (row[6] == 64 ? 1 : volts / 120.0);
    rows.push_back(row);
  }
  return rows;
}

inline sysTimeRecord slowMoment(const std::array<double, 12>& row) {
  const auto part = [&](std::size_t i) { return static_cast<std::int16_t>(row[i]); };
  return {static_cast<std::int16_t>(part(0) + 2000), part(2), 0, part(1), part(3), part(4), part(5), 0};
}

inline LogTable<12> slowHistory(const Text& frame, std::size_t count, int volts, UtcOffset offset) {
  LogTable<12> rows;
  const auto word = [](const Text& record, std::size_t at) { return Text{record[at + 1], record[at]}; };
  for (const auto& [local, record] : slowRecords(frame.substr(23), 16, 0, count, offset)) {
    auto row = slowDate<12>(local);
    const auto fraction = [&](std::size_t at) { return unscaledFraction(record.substr(at, 1), false); };
    const double powerSum = decodeDecimal(word(record, 14)) * 4294967296.0;
    const double voltageSum = decodeDecimal(word(record, 10)) * 65536.0;
    const auto peak = static_cast<std::int16_t>(decodeDecimal(word(record, 12)));
    row[6] = throughPicture(powerSum / 36000 / 16777216 * 1024, "###0.00");
    row[7] = peak / 65536.0 * 262144;
    row[8] = throughPicture(voltageSum / 36000 / 65536 * 512, "#00.00");
    row[9] = throughPicture(fraction(9) * 256 * volts / 120, "#00.00");
    row[10] = throughPicture(fraction(8) * 256 * volts / 120, "#00.00");
    row[11] = throughPicture(unscaledFraction(word(record, 6), false) * 256, "#0.000");
    rows.push_back(row);
  }
  if (rows.empty()) return rows;
  rows.push_back(slowDate<12>(localTimeString(frame.substr(0, 19), offset)));
  for (std::size_t r = 0; r + 1 < rows.size(); ++r) {
    const double ratio = halfHourRatio(slowMoment(rows[r]), slowMoment(rows[r + 1]));
    rows[r][6] = throughPicture(ratio * rows[r][6], "###0.00");
    rows[r][8] = throughPicture(ratio * rows[r][8], "#00.00");
  }
  return rows;
}

// A sample's columns 1 to 8.
inline std::array<double, 8> slowSample(const Text& block) {
  const auto field = [&](std::size_t at, std::size_t bytes, bool isSigned) {
    return unscaledFraction(block.substr(at, bytes), isSigned);
  };
  const double crest = bcdByte(static_cast<std::uint8_t>(block[14])) + roundDecimals(field(15, 1, true), 3);
  const float energy = static_cast<float>(field(16, 4, false)) * 232.0f;
  return {throughPicture(roundDecimals(field(0, 2, false) * 512, 2), "##0.00"),
          throughPicture(roundDecimals(field(2, 2, false) * 256, 3), "##0.0000"),
          throughPicture(roundDecimals(field(4, 2, true) * 262144, 2), "0.0"),
          throughPicture(roundDecimals(field(6, 3, false) * 65536, 3), "##0.000"),
          throughPicture(roundDecimals(field(9, 3, false) * 8000, 2), "00.00"),
          throughPicture(roundDecimals(field(12, 1, true) * 2, 3), "0.000"),
          throughPicture(crest, "0.000"),
          numberOf(formatPicture(energy, "###0.0000"))};
}

}  // namespace zephon::testing_support
