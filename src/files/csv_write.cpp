#include "files/csv_write.h"

#include "form/dictionary.h"
#include "text/fixed_point.h"
#include "text/picture.h"
#include "text/windows1252.h"

namespace zephon {
namespace {

// A line of the header: a dictionary text and a value.
std::string labelled(int key, std::string_view value, std::span<const std::string> dict) {
  return dictText(dict, key) + ": " + std::string(value);
}

std::string columnLine(const std::vector<std::string>& columns) {
  std::string line;
  for (const std::string& column : columns) {
    if (!line.empty()) line += ',';
    line += csvField(column);
  }
  return line;
}

}  // namespace

std::string csvField(std::string_view text) {
  if (text.find_first_of(",\"\r\n") == std::string_view::npos) return std::string(text);
  std::string field = "\"";
  for (const char c : text) field.append(c == '"' ? 2 : 1, c);
  return field += '"';
}

std::string oneLine(std::string_view text) {
  std::string line(text);
  for (char& c : line) {
    if (static_cast<unsigned char>(c) < ' ') c = ' ';
  }
  return line;
}

std::string fileLine(std::string_view text) {
  return toWindows1252(oneLine(text)).append(kLineEnd);
}

std::string csvHeader(const FileStamp& stamp, FileKind kind, const std::vector<std::string>& columns,
                      std::span<const std::string> dict) {
  const std::string lines[] = {stampDate(stamp.now),
                               "ID: " + stamp.userID,
                               labelled(22, stamp.firmwareVersion, dict),
                               labelled(199, kSoftwareVersion, dict),
                               labelled(23, stamp.chipID, dict),
                               labelled(136, std::to_string(stamp.nominalVolts), dict),
                               fileTitle(kind, dict),
                               columnLine(columns)};
  std::string header;
  for (const std::string& line : lines) {
    header += fileLine(line);
  }
  return header;
}

std::vector<std::string> dictTexts(std::span<const std::string> dict, std::initializer_list<int> keys) {
  std::vector<std::string> texts;
  for (const int key : keys) texts.push_back(dictText(dict, key));
  return texts;
}

char* putText(char* to, std::string_view text) {
  return std::copy(text.begin(), text.end(), to);
}

char* putTwo(char* to, double value) {
  return putFixed(to, value, 0, 2);
}

char* putThree(char* to, double first, double second, double third, char separator) {
  to = putTwo(to, first);
  *to++ = separator;
  to = putTwo(to, second);
  *to++ = separator;
  return putTwo(to, third);
}

char* putShortest(char* to, double value) {
  char* const end = writeShortest(to, value);
  return end != nullptr ? end : putText(to, shortestText(value));
}

char* putFixed(char* to, double value, int decimals, int minWhole) {
  const std::optional<std::int64_t> ticks = ticksOf(value, decimals);
  if (ticks) return writeTicks(to, *ticks, decimals, minWhole);
  // A number this large has all its whole digits.
  const std::string picture = "0." + std::string(static_cast<std::size_t>(decimals), '0');
  return putText(to, formatPicture(value, picture));
}

}  // namespace zephon
