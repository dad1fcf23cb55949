#include "logs/history_record.h"

#include "text/fixed_point.h"

namespace zephon {
namespace {

constexpr std::int64_t kSamples = 36000;  // of a half hour

std::int64_t lowFirst(const std::uint8_t* field) {
  return field[0] | field[1] << 8;
}

// A ratio to its nearest whole number. None of the fields can lie in the middle between two: a sum times 64
// or 32768 over 45 has an odd denominator, and a current's middle goes up.
constexpr std::int64_t nearest(std::int64_t numerator, std::int64_t denominator) {
  return (2 * numerator + denominator) / (2 * denominator);
}

double currentOf(std::int64_t field) {
  return fromTicks(nearest(field * 256 * 1000, 65536), 3);
}

// field * 65536 / 36000 / 65536 * 512
double voltageOf(std::int64_t sum) {
  return fromTicks(nearest(sum * 512 * 100, kSamples), 2);
}

// field * 4294967296 / 36000 / 16777216 * 1024
double powerOf(std::int64_t sum) {
  return fromTicks(nearest(sum * 256 * 1024 * 100, kSamples), 2);
}

double maximumPowerOf(std::int64_t field) {
  return 4 * static_cast<double>(static_cast<std::int16_t>(field));
}

}  // namespace

HistoryRow datedRow(const CalendarTime& local) {
  return {static_cast<double>(local.year % 100), static_cast<double>(local.day),
          static_cast<double>(local.month),      static_cast<double>(local.hour),
          static_cast<double>(local.minute),     static_cast<double>(local.second)};
}

sysTimeRecord momentOfRow(const HistoryRow& row) {
  const auto part = [&](std::size_t column) { return static_cast<std::int16_t>(row[column]); };
  const auto year = static_cast<std::int16_t>(2000 + part(0));
  return {year, part(2), 0, part(1), part(3), part(4), part(5), 0};
}

HistoryDecoder::HistoryDecoder(int nominalVolts, UtcOffset offset) : clock_(offset), volts_() {
  for (std::size_t byte = 0; byte < volts_.size(); ++byte)
    volts_[byte] = roundQuickly(static_cast<double>(byte) * nominalVolts / 120, 2);
}

std::optional<HistoryRow> HistoryDecoder::decode(const std::uint8_t* record) {
  const CalendarTime local = clock_.local({record[5], record[4], record[3], record[2], record[1], record[0]});
  if (isBlankDate(local)) return {};
  HistoryRow row = datedRow(local);
  row[6] = powerOf(lowFirst(record + 14));
  row[7] = maximumPowerOf(lowFirst(record + 12));
  row[8] = voltageOf(lowFirst(record + 10));
  row[9] = volts_[record[9]];
  row[10] = volts_[record[8]];
  row[11] = currentOf(lowFirst(record + 6));
  return row;
}

}  // namespace zephon
