#include "pdf/cell_lines.h"

#include <algorithm>
#include <cstdint>

#include "pdf/content.h"
#include "pdf/font_metrics.h"

namespace zephon {
namespace {

// How many of the characters fit in a line. Blanks may go past its end, where nobody sees them.
std::size_t fitting(std::string_view bytes, const FontMetrics* metrics, double size, double width,
                    std::size_t most) {
  constexpr FontMetrics kNone{};
  const auto& widths = metrics ? metrics->widths : kNone.widths;
  const auto room = static_cast<std::int64_t>(std::clamp(width * 1000 / size, 0.0, 1e15));
  std::int64_t used = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    used += widths[static_cast<unsigned char>(bytes[i])];
    if ((used > room || i >= most) && bytes[i] != ' ') return std::max<std::size_t>(i, 1);
  }
  return bytes.size();
}

std::string_view withoutBlanksBehind(std::string_view line) {
  return line.substr(0, line.find_last_not_of(' ') + 1);
}

}  // namespace

std::vector<std::string_view> cellLines(std::string_view bytes, const FontMetrics* metrics, double size,
                                        double width, std::size_t mostCharacters) {
  if (bytes.ends_with(kCrLf)) bytes.remove_suffix(kCrLf.size());
  std::vector<std::string_view> lines;
  for (bool more = true; more;) {
    const std::size_t end = std::min(bytes.find(kCrLf), bytes.size());
    std::size_t count = fitting(bytes.substr(0, end), metrics, size, width, mostCharacters);
    std::size_t dropped = 0;
    if (count == end) {
      dropped = end < bytes.size() ? kCrLf.size() : 0;
      more = dropped > 0;
    } else if (const std::size_t blank = bytes.rfind(' ', count);
               blank != std::string_view::npos && blank > 0) {
      count = blank;
      dropped = 1;
    }
    lines.push_back(withoutBlanksBehind(bytes.substr(0, count)));
    bytes.remove_prefix(count + dropped);
  }
  return lines;
}

std::string cellBorder(std::string_view border, std::size_t line, std::size_t count) {
  if (border == "1") border = "LRTB";
  std::string sides;
  for (const char side : std::string_view("LRTB")) {
    const bool here = side == 'T' ? line == 0 : side == 'B' ? line + 1 == count : true;
    if (here && border.find(side) != std::string_view::npos) sides += side;
  }
  return sides == "LRTB" ? "1" : sides;
}

}  // namespace zephon
