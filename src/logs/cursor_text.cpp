#include "logs/cursor_text.h"

#include <array>
#include <string_view>

#include "protocol/day_serial.h"
#include "text/picture.h"

namespace zephon {
namespace {

std::string_view unitOf(int plot, bool extremes) {
  constexpr std::array<std::array<std::string_view, 2>, 8> kUnits = {{{"V", "V"},
                                                                      {"A", "A Max"},
                                                                      {"W", "W Max"},
                                                                      {"V", "V"},
                                                                      {"Hz", "Hz"},
                                                                      {"", "V Min"},
                                                                      {"", "V Max"},
                                                                      {"kWh", "kWh"}}};
  if (plot < 0 || plot >= std::ssize(kUnits)) return {};
  return kUnits[static_cast<std::size_t>(plot)][extremes ? 1 : 0];
}

}  // namespace

std::string cursorText(double x, double value, int plot, CursorPage page, bool extremes) {
  const std::string_view picture = page == CursorPage::Chart ? "###0.0##" : "###0.##0";
  std::string text =
      page == CursorPage::Scope ? formatPicture(x, picture) + " ms" : dateSerialText(x, "mm/dd/yy hh:nn:ss");
  text += "  ";
  text += formatPicture(value, picture);
  text += ' ';
  text += unitOf(plot, extremes && page == CursorPage::Data);
  return text;
}

}  // namespace zephon
