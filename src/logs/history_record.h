#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "logs/local_clock.h"

namespace zephon {

// A row of the historical log: year (two digits), day, month, hour, minute, second, local; average power,
// maximum power (W); average, maximum, minimum voltage (V); maximum current (A).
using HistoryRow = std::array<double, 12>;

inline constexpr std::size_t kHistoryRecordBytes = 16;

// The date columns of a row; the rest zeros. And back, the year in full.
HistoryRow datedRow(const CalendarTime& local);
sysTimeRecord momentOfRow(const HistoryRow& row);

// Half-hour records of the device's history: sixteen bytes, BCD date in universal time, 16-bit fields low
// byte first.
//   0 year   1 day   2 month   3 second   4 minute   5 hour
//   6-7    maximum current, 256 A full scale, to 3 decimals
//   8      minimum voltage on a 120 V line, scaled to the nominal voltage, to 2 decimals
//   9      maximum voltage, the same
//   10-11  voltage sum, the high 16 of 32 bits, over the 36000 samples of a half hour, 512 V full scale, to 2
//          decimals; the nominal voltage does not enter
//   12-13  maximum power, two's complement, in steps of 4 W
//   14-15  power sum, the high 16 of 48 bits, over the same samples, to 2 decimals
class HistoryDecoder {
 public:
  HistoryDecoder(int nominalVolts, UtcOffset offset);

  // The row of a record's sixteen bytes. Nothing for a blank record: one whose local date text ends in
  // "0199".
  std::optional<HistoryRow> decode(const std::uint8_t* record);

 private:
  LocalClock clock_;
  std::array<double, 256> volts_;  // of a one-byte voltage field
};

}  // namespace zephon
