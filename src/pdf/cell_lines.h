#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zephon {

struct FontMetrics;

// Cuts a cell's text, one byte a character, into lines: at CR LF, and where the next character would go past
// the width in points, or past `mostCharacters`. Such a line is cut at its last blank, which goes, where it
// has one. One CR LF at the end of the text goes. At least one line, and one character in each that is cut.
// Without metrics all characters have no width.
std::vector<std::string_view> cellLines(std::string_view bytes, const FontMetrics* metrics, double size,
                                        double width, std::size_t mostCharacters);

// The sides of one line out of `count` in a cell with `border` ("0" none, "1" all, or letters of "LRTB"):
// the top belongs to the first line, the bottom to the last. All four are "1".
std::string cellBorder(std::string_view border, std::size_t line, std::size_t count);

}  // namespace zephon
