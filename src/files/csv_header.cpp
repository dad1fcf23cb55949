#include "files/csv_header.h"

#include <algorithm>
#include <array>

#include "protocol/model_names.h"
#include "text/number.h"
#include "text/strings.h"
#include "text/windows1252.h"

namespace zephon {
namespace {

constexpr std::size_t kIdCharacters = 10;
constexpr std::size_t kHeadLines = 8;
constexpr std::string_view kIdLabel = "ID: ";
constexpr int kHighRating = 200;

std::string utf8(std::string_view bytes) {
  return fromWindows1252(bytes);
}

// Other programs fill lines up with separators.
std::string_view withoutTail(std::string_view line, char separator) {
  while (line.ends_with(separator)) line.remove_suffix(1);
  return line;
}

// An ID may hold anything, separators too; where more follows it, the line was filled up with fields.
std::string_view idOf(std::string_view line, char separator) {
  if (line.starts_with(kIdLabel) && line.size() <= kIdLabel.size() + kIdCharacters)
    return line.substr(kIdLabel.size());
  std::string_view field = line.substr(0, line.find(separator));
  if (field.starts_with(kIdLabel)) field.remove_prefix(kIdLabel.size());
  return lastOf(field, kIdCharacters);
}

// The last characters of a line, but not those of its label.
std::string_view valueOf(std::string_view line, std::size_t characters, char separator) {
  line = withoutTail(line, separator);
  const std::size_t label = line.rfind(": ");
  if (label != std::string_view::npos) line.remove_prefix(label + 2);
  return trimmed(lastOf(line, characters));
}

FileFault fault(std::size_t line, std::string expected) {
  return {line, {}, std::move(expected)};
}

// Names in a line of them; separators at its end are filling.
std::size_t countNames(std::string_view line, char separator) {
  CsvFields fields;
  if (!fields.split(withoutTail(line, separator), separator)) return 0;
  return fields.count();
}

// True when the title is that of another kind of file.
bool isOtherKind(std::string_view title, std::initializer_list<FileKind> kinds,
                 std::span<const std::string> dict) {
  const auto isOne = [&](FileKind kind) {
    return !title.empty() && title == toWindows1252(fileTitle(kind, dict));
  };
  if (std::any_of(kinds.begin(), kinds.end(), isOne)) return false;
  constexpr std::array<FileKind, 5> kAll = {FileKind::Scope, FileKind::LiveChart, FileKind::Events,
                                            FileKind::History, FileKind::InternalChart};
  return std::any_of(kAll.begin(), kAll.end(), isOne);
}

CsvHead readEarlier(CsvText& text, std::string_view firstLine) {
  CsvHead head;
  head.identity = {utf8(firstLine.substr(0, kIdCharacters)), "n.nnn", "FF.FF.FF", 120, false};
  const std::optional<std::string_view> names = text.next();
  if (!names) {
    head.fault = fault(2, "a line of column names");
    return head;
  }
  head.separator = separatorOf(*names);
  const bool isRow = dateParts(names->substr(0, names->find(head.separator))).has_value();
  if (isRow) head.firstRow = names;
  if (!isRow) head.columns = countNames(*names, head.separator);
  return head;
}

void readIdentity(CsvHead& head, const std::array<std::string_view, kHeadLines>& lines) {
  const char separator = head.separator;
  FileIdentity& identity = head.identity;
  identity.secondLine = lines[1].find(kSecondLineID) != std::string_view::npos;
  identity.userID = utf8(idOf(lines[1], separator));
  identity.firmwareVersion = utf8(valueOf(lines[2], identity.secondLine ? 4 : 5, separator));
  identity.chipID = utf8(valueOf(lines[4], 8, separator));
  const std::optional<int> volts = wholeNumber(valueOf(lines[5], 3, separator));
  if (!volts) head.fault = fault(6, "a voltage rating such as 120");
  identity.nominalVolts = volts.value_or(0) >= kHighRating ? 240 : 120;
}

}  // namespace

std::string faultText(const FileFault& fault) {
  std::string place;
  if (fault.line) place = "line " + std::to_string(*fault.line) + ": ";
  if (fault.offset) place = "byte " + std::to_string(*fault.offset) + ": ";
  return place + "expected " + fault.expected;
}

CsvHead readCsvHead(CsvText& text, std::string_view earlierWord, std::initializer_list<FileKind> kinds,
                    std::span<const std::string> dict) {
  CsvHead head;
  if (text.size() > kLargestFile) {
    head.fault = FileFault{{}, kLargestFile, "the end of the file"};
    return head;
  }
  std::array<std::string_view, kHeadLines> lines;
  for (std::size_t i = 0; i < kHeadLines; ++i) {
    const std::optional<std::string_view> line = text.next();
    if (!line) {
      head.fault = fault(i + 1, "the eight lines of a file's head");
      return head;
    }
    lines[i] = *line;
    const bool earlier = i == 0 && !earlierWord.empty() && line->find(earlierWord) != std::string_view::npos;
    if (earlier) return readEarlier(text, *line);
  }
  head.separator = separatorOf(lines[7]);
  head.columns = countNames(lines[7], head.separator);
  if (isOtherKind(withoutTail(lines[6], head.separator), kinds, dict))
    head.fault = fault(7, '"' + fileTitle(*kinds.begin(), dict) + '"');
  else
    readIdentity(head, lines);
  return head;
}

}  // namespace zephon
