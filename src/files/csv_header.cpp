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
constexpr std::size_t kRatingCharacters = 3;
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

// What stands behind the label; nothing without one.
std::optional<std::string_view> behindLabel(std::string_view line) {
  const std::size_t label = line.rfind(": ");
  if (label == std::string_view::npos) return {};
  return line.substr(label + 2);
}

// The last characters of a line, but not those of its label.
std::string_view valueOf(std::string_view line, std::size_t characters, char separator) {
  line = withoutTail(line, separator);
  return trimmed(lastOf(behindLabel(line).value_or(line), characters));
}

int ratingOf(std::string_view line, char separator) {
  line = withoutTail(line, separator);
  const std::string_view value = behindLabel(line).value_or(lastOf(line, kRatingCharacters));
  return numberAtStart(value) >= kHighRating ? 240 : 120;
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

bool isEarlier(std::string_view firstLine, const EarlierForm& form) {
  return !form.word.empty() && firstLine.find(form.word) != std::string_view::npos;
}

CsvHead readEarlier(CsvText& text, std::string_view firstLine, bool maySkipNames) {
  CsvHead head;
  head.identity = {utf8(firstLine.substr(0, kIdCharacters)), "n.nnn", "FF.FF.FF", 120, false};
  const std::optional<std::string_view> second = text.next();
  if (!second) {
    head.fault = FileFault{2, {}, words::kColumnNames};
    return head;
  }
  head.separator = separatorOf(*second);
  if (maySkipNames && dateParts(second->substr(0, second->find(head.separator)))) head.firstRow = second;
  return head;
}

void readIdentity(CsvHead& head, const std::array<std::string_view, kHeadLines>& lines) {
  const char separator = head.separator;
  FileIdentity& identity = head.identity;
  identity.secondLine = lines[1].find(kSecondLineID) != std::string_view::npos;
  identity.userID = utf8(idOf(lines[1], separator));
  identity.firmwareVersion = utf8(valueOf(lines[2], identity.secondLine ? 4 : 5, separator));
  identity.chipID = utf8(valueOf(lines[4], 8, separator));
  identity.nominalVolts = ratingOf(lines[5], separator);
}

}  // namespace

CsvHead readCsvHead(CsvText& text, EarlierForm earlier, std::initializer_list<FileKind> kinds,
                    std::span<const std::string> dict) {
  CsvHead head;
  if (text.size() > kLargestFile) {
    head.fault = FileFault{{}, kLargestFile, words::kFileEnd};
    return head;
  }
  std::array<std::string_view, kHeadLines> lines;
  for (std::size_t i = 0; i < kHeadLines; ++i) {
    const std::optional<std::string_view> line = text.next();
    if (!line) {
      head.fault = FileFault{i + 1, {}, words::kHeadLines};
      return head;
    }
    lines[i] = *line;
    if (i == 0 && isEarlier(*line, earlier)) return readEarlier(text, *line, earlier.maySkipNames);
  }
  head.separator = separatorOf(lines[7]);
  head.columns = countNames(lines[7], head.separator);
  if (isOtherKind(withoutTail(lines[6], head.separator), kinds, dict))
    head.fault = FileFault{7, {}, words::kTextThere, fileTitle(*kinds.begin(), dict)};
  else
    readIdentity(head, lines);
  return head;
}

}  // namespace zephon
