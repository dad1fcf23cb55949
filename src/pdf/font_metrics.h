#pragma once

#include <array>
#include <string_view>

namespace zephon {

// What is read of a font's metric file (.afm): widths by character byte, in thousandths of the font's size,
// and where its underline lies.
struct FontMetrics {
  std::array<int, 256> widths{};  // 0 for a byte without a character
  int underlinePosition = -100;
  int underlineThickness = 50;
};

// Reads the lines between "StartCharMetrics" and "EndCharMetrics" (or the first without a code, "C -1 ;"):
//   C <code> ; WX <width> ; ...
// Widths are cut to whole numbers. Those below the first code of the file and above its last count as 0.
// Any bytes do: a line of another form is passed over.
FontMetrics parseFontMetrics(std::string_view file);

// The width of a text of one byte a character, in points.
double stringWidth(const FontMetrics& metrics, std::string_view bytes, double size);

}  // namespace zephon
