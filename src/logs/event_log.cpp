#include "logs/event_log.h"

#include <algorithm>
#include <vector>

#include "logs/local_clock.h"
#include "logs/log_records.h"
#include "protocol/commands.h"
#include "protocol/event_codes.h"
#include "text/number.h"
#include "text/strings.h"

namespace zephon {
namespace {

using EventRow = std::array<double, 8>;

constexpr std::int32_t kLogStart = 110592;
constexpr std::size_t kRecordBytes = 8;
constexpr std::size_t kRecords = 512;
constexpr std::size_t kDataOffset = 4;
static_assert(kEventFrameBytes == orvantis::kEventLog.replyBytes);

DeviceDateBytes dateOf(const std::uint8_t* record) {
  return {record[6], record[5], record[4], record[3], record[2], record[1]};
}

EventRow rowAt(const CalendarTime& local, double code, double magnitude) {
  return {static_cast<double>(local.year % 100),
          static_cast<double>(local.day),
          static_cast<double>(local.month),
          static_cast<double>(local.hour),
          static_cast<double>(local.minute),
          static_cast<double>(local.second),
          code,
          magnitude};
}

// The parts of a text as numbers; nothing unless there are exactly three.
std::optional<std::array<double, 3>> threeParts(std::string_view text, char separator) {
  const std::vector<std::string> parts = split(text, separator);
  if (parts.size() != 3) return {};
  return std::array<double, 3>{numberAtStart(parts[0]), numberAtStart(parts[1]), numberAtStart(parts[2])};
}

double limitOf(double code, const Limits& limits) {
  if (code == event::kUnderVoltageRecord) return limits.UVre;
  return code == event::kOverVoltageRecord ? limits.OVre : 0;
}

std::optional<EventRow> rowOf(const PdEvent& event, const Limits& limits, std::span<const std::string> dict) {
  const std::vector<std::string> moment = split(event.date, ' ');
  if (moment.size() != 2) return {};
  const auto date = threeParts(moment[0], '/');
  const auto time = threeParts(moment[1], ':');
  if (!date || !time) return {};
  const auto& [month, day, year] = *date;
  const auto& [hour, minute, second] = *time;
  const double code = pqNumber(event.text, dict);
  return EventRow{year, day, month, hour, minute, second, code, limitOf(code, limits)};
}

}  // namespace

bool beginsAsEvents(std::string_view frame) {
  return frame.size() == kEventFrameBytes && beginsLog(frame, kLogStart, kRecords * kRecordBytes);
}

std::optional<LogTable<8>> decodeEventFrame(std::string_view frame, int nominalVolts, UtcOffset offset) {
  if (frame.size() != kEventFrameBytes) return {};
  const std::size_t count = recordCount(frame, kLogStart, kRecordBytes, kRecords);
  const double scale = nominalVolts / 120.0;
  LocalClock clock(offset);
  LogTable<8> rows;
  rows.reserve(count);
  walkRecords(frame.substr(kDataOffset), kRecordBytes, count, [&](const std::uint8_t* record) {
    const CalendarTime local = clock.local(dateOf(record));
    if (isBlankDate(local)) return false;
    rows.push_back(
        rowAt(local, record[0], record[0] == event::kCurrentOverload ? record[7] : record[7] * scale));
    return true;
  });
  return rows;
}

std::optional<LogTable<8>> eventsOfTable(const PdEvents& events, const Counters& counters,
                                         const Limits& limits, std::span<const std::string> dict) {
  const std::int64_t sum =
      std::int64_t{counters.poCount} + counters.uvreCount + counters.ovreCount + counters.sgCount;
  const auto count = static_cast<std::size_t>(std::clamp<std::int64_t>(sum, 0, std::ssize(events)));
  LogTable<8> rows;
  for (std::size_t i = 0; i < count; ++i) {
    const std::optional<EventRow> row = rowOf(events[count - 1 - i], limits, dict);
    if (!row) return {};
    rows.push_back(*row);
  }
  return rows;
}

}  // namespace zephon
