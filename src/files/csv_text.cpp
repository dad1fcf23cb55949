#include "files/csv_text.h"

#include <algorithm>
#include <cstdint>

#include "files/file_reading.h"
#include "text/fixed_point.h"
#include "text/number.h"
#include "text/strings.h"
#include "text/windows1252.h"

namespace zephon {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

// A number of up to ten characters is a whole number over a power of ten, both exact.
struct ShortNumber {
  std::int64_t ticks = 0;
  int decimals = 0;
  double value() const { return fromTicks(ticks, decimals); }
};

std::optional<ShortNumber> shortNumber(std::string_view text) {
  const bool minus = !text.empty() && text[0] == '-';
  if (minus) text.remove_prefix(1);
  if (text.empty() || text.size() > 10 || !isDigit(text.front()) || !isDigit(text.back())) return {};
  std::int64_t digits = 0;
  std::size_t decimals = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (isDigit(text[i])) {
      digits = digits * 10 + (text[i] - '0');
    } else if (text[i] == '.' && decimals == 0) {
      decimals = text.size() - i - 1;
    } else {
      return {};
    }
  }
  return ShortNumber{minus ? -digits : digits, static_cast<int>(decimals)};
}

// True when the comma of a number stands for the point: a thousands comma has three digits behind it.
bool isDecimalComma(std::string_view text) {
  const std::size_t comma = text.find(',');
  return text.find(',', comma + 1) == std::string_view::npos && text.find('.') == std::string_view::npos &&
         text.size() - comma != 4;
}

}  // namespace

CsvText::CsvText(std::string_view bytes) : rest_(bytes.substr(0, kLargestFile)), size_(bytes.size()) {
  if (rest_.starts_with(kByteOrderMark)) rest_.remove_prefix(kByteOrderMark.size());
  if (isAscii(rest_) || !isUtf8(rest_)) return;
  converted_ = toWindows1252(rest_);
  rest_ = converted_;
}

std::optional<std::string_view> CsvText::next() {
  if (rest_.empty()) return {};
  ++lineNumber_;
  const std::size_t end = rest_.find('\n');
  std::string_view line = rest_.substr(0, end);
  rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

bool CsvFields::split(std::string_view line, char separator) {
  count_ = 0;
  separator_ = separator;
  joined_ = false;
  if (line.find('"') != std::string_view::npos) return splitQuoted(line);
  for (;;) {
    if (count_ == kMost) return false;
    const std::size_t end = line.find(separator);
    fields_[count_++] = line.substr(0, end);
    if (end == std::string_view::npos) return true;
    line.remove_prefix(end + 1);
  }
}

// A field that begins with a quote ends at the next quote that is not doubled.
bool CsvFields::splitQuoted(std::string_view line) {
  unquoted_.clear();
  unquoted_.reserve(line.size());  // so that fields into it stay where they are
  std::size_t i = 0;
  for (;;) {
    if (count_ == kMost) return false;
    const std::size_t start = unquoted_.size();
    bool quoted = i < line.size() && line[i] == '"';
    if (quoted) ++i;
    while (i < line.size() && (quoted || line[i] != separator_)) {
      const bool isQuote = quoted && line[i] == '"';
      if (isQuote && !(i + 1 < line.size() && line[i + 1] == '"')) {
        quoted = false;
      } else {
        unquoted_ += line[i];
        if (isQuote) ++i;
      }
      ++i;
    }
    if (quoted) return false;
    fields_[count_++] = std::string_view(unquoted_).substr(start);
    if (i++ == line.size()) return true;
  }
}

void CsvFields::trimTo(std::size_t count) {
  while (count_ > count && fields_[count_ - 1].empty()) --count_;
}

void CsvFields::joinDecimals(std::size_t plain, std::size_t values) {
  if (separator_ != ',' || count_ != plain + 2 * values) return;
  for (std::size_t i = 0; i < values; ++i) {
    const std::string_view whole = fields_[plain + 2 * i];
    const std::string_view decimals = fields_[plain + 2 * i + 1];
    const char* const end = decimals.data() + decimals.size();
    if (whole.data() + whole.size() + 1 != decimals.data()) return;  // was in quotes
    fields_[plain + i] = {whole.data(), static_cast<std::size_t>(end - whole.data())};
  }
  count_ = plain + values;
  joined_ = true;
}

std::optional<double> CsvFields::number(std::size_t i) const {
  const std::string_view text = fields_[i];
  if (const auto number = shortNumber(text)) return number->value();
  return longNumber(text);
}

// Few numbers have more decimals than they are rounded to.
std::optional<double> CsvFields::number(std::size_t i, int decimals) const {
  const auto number = shortNumber(fields_[i]);
  if (number && number->decimals <= decimals) return number->value();
  const auto value = number ? number->value() : longNumber(fields_[i]);
  return value ? std::optional(roundQuickly(*value, decimals)) : value;
}

std::optional<double> CsvFields::longNumber(std::string_view text) const {
  const std::size_t comma = text.find(',');
  if (comma == std::string_view::npos) return plainNumber(text);
  if (separator_ == ',' && !joined_ && !isDecimalComma(text)) return {};
  std::string withPoint(text);
  withPoint[comma] = '.';
  return plainNumber(withPoint);
}

char separatorOf(std::string_view line) {
  char most = ',';
  for (const char separator : {';', '\t'}) {
    if (std::count(line.begin(), line.end(), separator) > std::count(line.begin(), line.end(), most))
      most = separator;
  }
  return most;
}

bool isBlankLine(std::string_view line, char separator) {
  return std::all_of(line.begin(), line.end(), [&](char c) { return isBlank(c) || c == separator; });
}

std::optional<std::array<int, 3>> threeNumbers(std::string_view text, char separator) {
  std::array<int, 3> numbers{};
  std::size_t number = 0;
  std::size_t digits = 0;
  for (const char c : text) {
    if (isDigit(c)) {
      if (++digits > 4) return {};
      numbers[number] = numbers[number] * 10 + (c - '0');
    } else {
      if (c != separator || digits == 0 || ++number == numbers.size()) return {};
      digits = 0;
    }
  }
  return number == 2 && digits > 0 ? std::optional(numbers) : std::nullopt;
}

std::optional<std::array<int, 3>> dateParts(std::string_view text) {
  auto date = threeNumbers(text, '/');
  if (!date) date = threeNumbers(text, '-');
  if (!date) return {};
  const auto& [month, day, year] = *date;
  const bool real = month >= 1 && month <= 12 && day >= 1 && day <= 31;
  return real ? date : std::nullopt;
}

std::optional<std::array<int, 3>> timeParts(std::string_view text) {
  const auto time = threeNumbers(text, ':');
  if (!time) return {};
  const auto& [hour, minute, second] = *time;
  return hour < 24 && minute < 60 && second < 60 ? time : std::nullopt;
}

}  // namespace zephon
