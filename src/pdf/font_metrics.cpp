#include "pdf/font_metrics.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>

#include "text/strings.h"

namespace zephon {
namespace {

constexpr int kMostWidth = 32767;

// The whole part of the number that is the second word, as in " WX 277.5 ".
std::optional<int> secondWord(std::string_view field) {
  const char* at = field.data();
  const char* const end = at + field.size();
  while (at != end && isBlank(*at)) ++at;
  while (at != end && !isBlank(*at)) ++at;
  while (at != end && isBlank(*at)) ++at;
  int value = 0;
  if (std::from_chars(at, end, value).ec != std::errc{}) return {};
  if (value > kMostWidth || value < -kMostWidth) return {};
  return value;
}

std::string_view nextLine(std::string_view& rest) {
  const std::size_t end = rest.find('\n');
  const std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return line;
}

// Where the line begins that ends the character lines, or has the first character without a code.
std::size_t endOfWidths(std::string_view text) {
  const std::size_t end = std::min(text.find("EndCharMetrics"), text.find("-1 ;"));
  return end == std::string_view::npos ? end : text.rfind('\n', end) + 1;
}

// The character lines, and the span of the codes that they give.
class WidthReader {
 public:
  explicit WidthReader(FontMetrics& metrics) : widths_(metrics.widths) {}

  void line(std::string_view text) {
    const std::size_t first = text.find(';');
    if (first == std::string_view::npos) return;
    const auto code = secondWord(text.substr(0, first));
    text.remove_prefix(first + 1);
    const auto width = secondWord(text.substr(0, text.find(';')));
    if (!code || !width || *code < 1 || *code > 255) return;
    if (!first_) first_ = code;
    last_ = *code;
    widths_[static_cast<std::size_t>(*code)] = *width;
  }

  void finish() {
    for (int code = 0; code < 256; ++code)
      if (!first_ || code < *first_ || code > last_) widths_[static_cast<std::size_t>(code)] = 0;
  }

 private:
  std::array<int, 256>& widths_;
  std::optional<int> first_;
  int last_ = 0;
};

void readUnderline(FontMetrics& metrics, std::string_view line) {
  if (!line.starts_with("Underline")) return;
  const auto value = secondWord(line);
  if (!value) return;
  if (line.starts_with("UnderlinePosition ")) metrics.underlinePosition = *value;
  if (line.starts_with("UnderlineThickness ")) metrics.underlineThickness = *value;
}

}  // namespace

FontMetrics parseFontMetrics(std::string_view file) {
  FontMetrics metrics;
  while (!file.empty()) {
    const std::string_view line = nextLine(file);
    if (line.find("StartCharMetrics") != std::string_view::npos) break;
    readUnderline(metrics, line);
  }
  file = file.substr(0, endOfWidths(file));
  WidthReader widths(metrics);
  while (!file.empty()) widths.line(nextLine(file));
  widths.finish();
  return metrics;
}

double stringWidth(const FontMetrics& metrics, std::string_view bytes, double size) {
  std::int64_t sum = 0;
  for (const char c : bytes) sum += metrics.widths[static_cast<unsigned char>(c)];
  return size * static_cast<double>(sum) / 1000;
}

}  // namespace zephon
