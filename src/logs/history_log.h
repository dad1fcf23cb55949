#pragma once

#include <optional>
#include <string_view>

#include "form/logs.h"
#include "logs/history_record.h"
#include "protocol/device_date.h"

namespace zephon {

// The historical log, half an hour a row.

// The reply to "gD":
//   0-18   device clock, "hh:mm:ss mm/dd/yyyy", universal time
//   19     wrap flag, a digit: "0" the log has not wrapped, "1" it has
//   20-22  write address, high byte first; the log begins at 16
//   23-    6911 records of 16 bytes
inline constexpr std::size_t kHistoryFrameBytes = 110599;

// Whether a frame has a flag and an address of the log where they belong.
bool beginsAsHistory(std::string_view frame);

// The frame's rows in the order of the device's memory, without blank records, and one row more that closes
// the last of them: the moment of the download, with zeros. Sums of rows that were cut short are put right.
// No rows at all for a log without records; nothing for a frame of another length.
std::optional<LogTable<12>> decodeHistoryFrame(std::string_view frame, int nominalVolts, UtcOffset offset);

// The rows that hold records: all but the closing one.
inline std::size_t historyRecords(const LogTable<12>& history) {
  return history.empty() ? 0 : history.size() - 1;
}

// Average power and voltage (columns 6 and 8) of each row are what the device summed over a whole half hour.
// A row that ends sooner, by the start of the next, gets its true averages.
void correctShortRows(LogTable<12>& history);

}  // namespace zephon
