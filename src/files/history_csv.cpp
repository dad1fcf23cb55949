#include "files/history_csv.h"

#include "files/csv_header.h"
#include "files/csv_write.h"
#include "logs/history_log.h"

namespace zephon {
namespace {

constexpr std::size_t kPlain = 3;
constexpr std::size_t kValues = 6;
constexpr std::size_t kFirstValue = 6;    // column of the table
constexpr std::size_t kShortestRow = 40;  // bytes
constexpr double kBelowHighRating = 140;  // average volts of a 120 V line

using Parts = std::array<int, 3>;

char* putTime(char* to, const HistoryRow& row) {
  return putThree(to, row[3], row[4], row[5], ':');
}

void putRow(TextBuffer& buffer, const HistoryRow& row, const HistoryRow& next) {
  char* to = buffer.room(kRowRoom);
  to = putThree(to, row[2], row[1], row[0], '/');
  *to++ = ',';
  to = putTime(to, next);
  *to++ = ',';
  to = putTime(to, row);
  for (std::size_t column = kFirstValue; column < row.size(); ++column) {
    *to++ = ',';
    to = putShortest(to, row[column]);
  }
  buffer.wrote(putText(to, kLineEnd));
}

HistoryRow rowAt(const Parts& date, const Parts& time) {
  const auto& [month, day, year] = date;
  const auto& [hour, minute, second] = time;
  return datedRow({year, month, day, hour, minute, second});
}

// Takes one row; says what it expected. `closing` becomes the end of the row's half hour.
std::optional<Expected> takeRow(CsvFields& fields, LogTable<12>& table, HistoryRow& closing) {
  fields.trimTo(kPlain + kValues);
  fields.joinDecimals(kPlain, kValues);
  if (fields.count() != kPlain + kValues) return Expected{words::kHistoryFields};
  const auto date = dateParts(fields[0]);
  if (!date) return Expected{words::kDateLike, "05/31/13"};
  const auto end = timeParts(fields[1]);
  const auto start = timeParts(fields[2]);
  if (!end || !start) return Expected{words::kTwoTimesLike, "14:02:07"};
  HistoryRow row = rowAt(*date, *start);
  for (std::size_t i = 0; i < kValues; ++i) {
    const auto value = fields.number(kPlain + i);
    if (!value) return Expected{words::kNumbers};
    row[kFirstValue + i] = *value;
  }
  table.push_back(row);
  closing = rowAt(*date, *end);
  return {};
}

}  // namespace

std::string historyCsv(const FileStamp& stamp, const LogTable<12>& history,
                       std::span<const std::string> dict) {
  const auto names = dictTexts(dict, {55, 149, 152, 82, 83, 150, 151, 153, 154});
  const std::string header = csvHeader(stamp, FileKind::History, names, dict);
  TextBuffer buffer(header.size() + kRowRoom + history.size() * 80);
  buffer.add(header);
  for (std::size_t r = 0; r < historyRecords(history); ++r) putRow(buffer, history[r], history[r + 1]);
  return buffer.take();
}

FileReading<LogTable<12>> readHistoryCsv(std::string_view file, std::span<const std::string> dict) {
  FileReading<LogTable<12>> reading;
  CsvText text(file);
  const CsvHead head = readCsvHead(text, {"Historical"}, {FileKind::History}, dict);
  HistoryRow closing{};
  reading.table.reserve(rowsToExpect(file.size(), kShortestRow));
  readCsvTable(reading, text, head, [&](CsvFields& row) { return takeRow(row, reading.table, closing); });
  if (reading.table.empty()) return reading;
  reading.identity.nominalVolts = reading.table.front()[8] < kBelowHighRating ? 120 : 240;
  reading.table.push_back(closing);
  return reading;
}

}  // namespace zephon
