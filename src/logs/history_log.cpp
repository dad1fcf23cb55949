#include "logs/history_log.h"

#include "logs/log_records.h"
#include "protocol/commands.h"
#include "protocol/day_serial.h"
#include "text/fixed_point.h"

namespace zephon {
namespace {

constexpr std::size_t kClockBytes = 19;
constexpr std::size_t kDataOffset = 23;
constexpr std::int32_t kLogStart = 16;
constexpr std::size_t kRecords = 6911;
static_assert(kHistoryFrameBytes == kDataOffset + kRecords * kHistoryRecordBytes);
static_assert(kHistoryFrameBytes == orvantis::kHistory.replyBytes);

// The row of the device's own clock; zeros when that is no date.
HistoryRow closingRow(std::string_view clock, UtcOffset offset) {
  const auto now = deviceDateFields(localTimeString(clock, offset));
  return datedRow(calendarOf(now.value_or(sysTimeRecord{})));
}

}  // namespace

bool beginsAsHistory(std::string_view frame) {
  return frame.size() == kHistoryFrameBytes &&
         beginsLog(frame.substr(kClockBytes), kLogStart, kRecords * kHistoryRecordBytes);
}

std::optional<LogTable<12>> decodeHistoryFrame(std::string_view frame, int nominalVolts, UtcOffset offset) {
  if (frame.size() != kHistoryFrameBytes) return {};
  const std::size_t count = recordCount(frame.substr(kClockBytes), kLogStart, kHistoryRecordBytes, kRecords);
  HistoryDecoder records(nominalVolts, offset);
  LogTable<12> rows;
  rows.reserve(count + 1);
  walkRecords(frame.substr(kDataOffset), kHistoryRecordBytes, count, [&](const std::uint8_t* record) {
    const std::optional<HistoryRow> row = records.decode(record);
    if (row) rows.push_back(*row);
    return row.has_value();
  });
  if (rows.empty()) return rows;
  rows.push_back(closingRow(frame.substr(0, kClockBytes), offset));
  correctShortRows(rows);
  return rows;
}

void correctShortRows(LogTable<12>& history) {
  for (std::size_t r = 0; r < historyRecords(history); ++r) {
    const double ratio = halfHourRatio(momentOfRow(history[r]), momentOfRow(history[r + 1]));
    history[r][6] = roundQuickly(ratio * history[r][6], 2);
    history[r][8] = roundQuickly(ratio * history[r][8], 2);
  }
}

}  // namespace zephon
