#include "files/chart_csv.h"

#include "files/csv_header.h"
#include "files/csv_write.h"
#include "form/dictionary.h"
#include "protocol/day_serial.h"
#include "protocol/firmware_gates.h"

namespace zephon {
namespace {

using ChartRow = std::array<double, 9>;
using Parts = std::array<int, 3>;

constexpr std::size_t kPlain = 2;         // date and time
constexpr double kBelowHighRating = 140;  // volts of a 120 V line
constexpr int kSecondsOfDay = 86400;
constexpr std::size_t kShortestRow = 64;  // bytes, of all quantities

// A quantity in a file: its column of the table, and its picture.
struct Quantity {
  std::size_t column;
  int decimals;
  int minWhole;
};

constexpr std::array<Quantity, 8> kAll = {
    {{1, 2, 1}, {2, 4, 1}, {3, 1, 1}, {4, 3, 1}, {5, 2, 2}, {6, 3, 1}, {7, 3, 1}, {8, 4, 1}}};
constexpr std::array<Quantity, 2> kTwoVoltages = {{{1, 0, 1}, {4, 0, 1}}};

using Layout = std::span<const Quantity>;

Layout layoutToWrite(const FileStamp& stamp, FileKind kind) {
  if (stamp.modelLine != 1 || kind == FileKind::InternalChart) return kAll;
  const bool both = recordsNeutralGround({stamp.modelLine, stamp.firmwareVersion, stamp.nominalVolts});
  return Layout(kTwoVoltages).first(both ? 2 : 1);
}

// A file of the second line has what its column names name. Any other has all quantities, and so has one with
// more names than quantities, where names of two words were taken apart. Nothing for names of no chart.
std::optional<Layout> layoutToRead(const CsvHead& head) {
  if (!head.identity.secondLine || head.columns >= kPlain + kAll.size()) return kAll;
  if (head.columns <= kPlain || head.columns > kPlain + kTwoVoltages.size()) return {};
  return Layout(kTwoVoltages).first(head.columns - kPlain);
}

// The load's current and power are named in two columns each, "Load" and the quantity, though a row has one
// field for either: readers of these files count on twelve names above ten fields.
std::vector<std::string> columnNames(Layout layout, std::span<const std::string> dict) {
  const auto of = [&](int key) { return dictText(dict, key); };
  const std::array<std::vector<std::string>, 9> names = {{{},
                                                          {of(201)},
                                                          {of(143), of(140)},
                                                          {of(143), of(141)},
                                                          {"N-G " + of(139)},
                                                          {of(202)},
                                                          {of(129)},
                                                          {of(130)},
                                                          {of(131)}}};
  std::vector<std::string> columns = {of(55), of(56)};
  for (const Quantity& quantity : layout) {
    const auto& more = names[quantity.column];
    columns.insert(columns.end(), more.begin(), more.end());
  }
  return columns;
}

// Date serials as "mm/dd/yyyy,hh:mm:ss" and back. Rows of one day follow each other, so the day is worked out
// once.
class SerialTexts {
 public:
  char* put(char* to, double serial) {
    const std::int64_t seconds = nearestSeconds(serial);
    if (!hasDay_ || seconds < daySeconds_ || seconds >= daySeconds_ + kSecondsOfDay) takeDay(seconds);
    const auto rest = static_cast<int>(seconds - daySeconds_);
    const int hour = rest / 3600;
    return putThree(putText(to, dayText_), hour, rest / 60 % 60, rest % 60, ':');
  }

 private:
  void takeDay(std::int64_t seconds) {
    const auto intoDay = (seconds % kSecondsOfDay + kSecondsOfDay) % kSecondsOfDay;
    daySeconds_ = seconds - intoDay;
    const std::int64_t day = daySeconds_ / kSecondsOfDay;
    dayText_ = dateSerialText(static_cast<double>(day), "mm/dd/yyyy") + ',';
    hasDay_ = true;
  }

  bool hasDay_ = false;
  std::int64_t daySeconds_ = 0;
  std::string dayText_;
};

class SerialReader {
 public:
  double serial(const Parts& date, const Parts& time) {
    if (date != date_) {
      date_ = date;
      const int year = date[2] < 100 ? 2000 + date[2] : date[2];
      const auto part = [](int number) { return static_cast<std::int16_t>(number); };
      day_ = dateSerial({part(year), part(date[0]), 0, part(date[1]), 0, 0, 0, 0});
    }
    return day_ + time[0] / 24.0 + time[1] / 1440.0 + time[2] / 86400.0;  // as dateSerial adds them up
  }

 private:
  Parts date_{};
  double day_ = 0;
};

void putRow(TextBuffer& buffer, const ChartRow& row, Layout layout, SerialTexts& texts) {
  char* to = texts.put(buffer.room(kRowRoom), row[0]);
  for (const Quantity& quantity : layout) {
    *to++ = ',';
    to = putFixed(to, row[quantity.column], quantity.decimals, quantity.minWhole);
  }
  buffer.wrote(putText(to, kLineEnd));
}

std::string csvOf(std::string_view head, Layout layout, std::span<const ChartRow> rows) {
  TextBuffer buffer(head.size() + kRowRoom + rows.size() * (24 + layout.size() * 8));
  buffer.add(head);
  SerialTexts texts;
  for (const ChartRow& row : rows) putRow(buffer, row, layout, texts);
  return buffer.take();
}

// Takes one row; says what it expected.
std::optional<Expected> takeRow(CsvFields& fields, Layout layout, SerialReader& serials, LogTable<9>& table) {
  fields.trimTo(kPlain + layout.size());
  if (layout.size() == kAll.size()) fields.joinDecimals(kPlain, layout.size());
  if (fields.count() != kPlain + layout.size()) return Expected{words::kChartFields};
  const auto date = dateParts(fields[0]);
  if (!date) return Expected{words::kDateLike, "05/31/2013"};
  const auto time = timeParts(fields[1]);
  if (!time) return Expected{words::kTimeLike, "14:02:07"};
  ChartRow row{};
  row[0] = serials.serial(*date, *time);
  for (std::size_t i = 0; i < layout.size(); ++i) {
    const auto value = fields.number(kPlain + i, layout[i].decimals);
    if (!value) return Expected{words::kNumbers};
    row[layout[i].column] = *value;
  }
  table.push_back(row);
  return {};
}

}  // namespace

std::string chartCsvHead(const FileStamp& stamp, FileKind kind, std::span<const std::string> dict) {
  return csvHeader(stamp, kind, columnNames(layoutToWrite(stamp, kind), dict), dict);
}

std::string chartCsvRows(const FileStamp& stamp, FileKind kind, std::span<const ChartRow> rows) {
  return csvOf({}, layoutToWrite(stamp, kind), rows);
}

std::string chartCsv(const FileStamp& stamp, std::span<const ChartRow> rows, FileKind kind,
                     std::span<const std::string> dict) {
  return csvOf(chartCsvHead(stamp, kind, dict), layoutToWrite(stamp, kind), rows);
}

FileReading<LogTable<9>> readChartCsv(std::string_view file, std::span<const std::string> dict) {
  FileReading<LogTable<9>> reading;
  CsvText text(file);
  CsvHead head = readCsvHead(text, {"Chart", true}, {FileKind::LiveChart, FileKind::InternalChart}, dict);
  const std::optional<Layout> layout = layoutToRead(head);
  if (!head.fault && !layout) head.fault = FileFault{text.lineNumber(), {}, words::kColumnNames};
  SerialReader serials;
  reading.table.reserve(rowsToExpect(file.size(), kShortestRow));
  readCsvTable(reading, text, head,
               [&](CsvFields& row) { return takeRow(row, *layout, serials, reading.table); });
  if (!reading.table.empty())
    reading.identity.nominalVolts = reading.table.front()[1] < kBelowHighRating ? 120 : 240;
  return reading;
}

}  // namespace zephon
