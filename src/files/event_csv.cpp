#include "files/event_csv.h"

#include "files/csv_header.h"
#include "files/csv_write.h"
#include "form/dictionary.h"
#include "logs/event_tree.h"
#include "protocol/event_codes.h"
#include "text/windows1252.h"

namespace zephon {
namespace {

// An event code and its text in the file's bytes. Reading goes by these, so that a text with characters that
// the code page lacks is found again.
struct FileText {
  double code;
  std::string bytes;
};

std::vector<FileText> fileTexts(std::span<const std::string> dict) {
  std::vector<FileText> texts;
  for (const EventCode& event : eventCodes())
    texts.push_back({static_cast<double>(event.code), toWindows1252(oneLine(dictText(dict, event.key)))});
  return texts;
}

std::string fieldOf(double code, const std::vector<FileText>& texts) {
  for (const FileText& text : texts) {
    if (text.code == code) return csvField(text.bytes);
  }
  return {};
}

double codeOf(std::string_view bytes, const std::vector<FileText>& texts) {
  if (bytes.empty()) return 0;
  for (const FileText& text : texts) {
    if (text.bytes == bytes) return text.code;
  }
  return 0;
}

void putRow(TextBuffer& buffer, const std::array<double, 8>& row, const std::string& event) {
  char* to = buffer.room(kRowRoom + event.size());
  to = putThree(to, row[2], row[1], row[0], '/');
  *to++ = ',';
  to = putThree(to, row[3], row[4], row[5], ':');
  *to++ = ',';
  to = putText(to, event);
  *to++ = ',';
  if (hasMagnitude(row[6])) to = putShortest(to, row[7]);
  buffer.wrote(putText(to, kLineEnd));
}

// Takes one row; says what it expected.
std::optional<Expected> takeRow(CsvFields& fields, const std::vector<FileText>& texts,
                                EventCsvReading& reading) {
  fields.trimTo(4);
  fields.joinDecimals(3, 1);
  if (fields.count() < 3 || fields.count() > 4) return Expected{words::kEventFields};
  const auto date = dateParts(fields[0]);
  if (!date) return Expected{words::kDateLike, "05/31/13"};
  const auto time = timeParts(fields[1]);
  if (!time) return Expected{words::kTimeLike, "14:02:07"};
  std::optional<double> magnitude = 0;
  if (fields.count() == 4 && !fields[3].empty()) magnitude = fields.number(3);
  if (!magnitude) return Expected{words::kMagnitude};
  const double code = codeOf(fields[2], texts);
  if (code == 0 && !fields[2].empty()) ++reading.unknownEvents;
  const auto& [month, day, year] = *date;
  const auto& [hour, minute, second] = *time;
  const auto part = [](int number) { return static_cast<double>(number); };
  reading.table.push_back(
      {part(year % 100), part(day), part(month), part(hour), part(minute), part(second), code, *magnitude});
  return {};
}

}  // namespace

std::string eventCsv(const FileStamp& stamp, const LogTable<8>& events, std::span<const std::string> dict) {
  const std::string header = csvHeader(stamp, FileKind::Events, dictTexts(dict, {55, 56, 57, 58}), dict);
  const std::vector<FileText> texts = fileTexts(dict);
  TextBuffer buffer(header.size() + kRowRoom + events.size() * 64);
  buffer.add(header);
  for (const auto& row : events) putRow(buffer, row, fieldOf(row[6], texts));
  return buffer.take();
}

EventCsvReading readEventCsv(std::string_view file, std::span<const std::string> dict) {
  EventCsvReading reading;
  CsvText text(file);
  const CsvHead head = readCsvHead(text, {}, {FileKind::Events}, dict);
  const std::vector<FileText> texts = fileTexts(dict);
  readCsvTable(reading, text, head, [&](CsvFields& row) { return takeRow(row, texts, reading); });
  if (reading.fault) reading.unknownEvents = 0;
  return reading;
}

}  // namespace zephon
