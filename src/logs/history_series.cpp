#include "logs/history_series.h"

#include <algorithm>
#include <array>

#include "logs/history_log.h"
#include "protocol/day_serial.h"
#include "text/picture.h"

namespace zephon {
namespace {

std::size_t columnOf(HistoryView view) {
  constexpr std::array<std::size_t, 6> kColumns = {6, 8, 7, 9, 10, 11};
  return kColumns[static_cast<std::size_t>(view)];
}

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

HistorySeries historySeries(const LogTable<12>& history, HistoryView view) {
  HistorySeries series;
  const std::size_t rows = historyRecords(history);
  if (rows == 0) return series;
  series.x.reserve(rows);
  series.y.reserve(rows);
  double largest = 0;
  for (std::size_t r = 0; r < rows; ++r) {
    series.x.push_back(dateSerial(momentOfRow(history[r])));
    series.y.push_back(history[r][columnOf(view)]);
    largest = std::max(largest, series.y.back());
  }
  series.xAxis = {series.x.front(), series.x.back()};
  series.yAxis = {0, 2 * largest};
  return series;
}

std::string cursorText(double serial, double value, int plot, CursorPage page, bool extremes) {
  const std::string_view picture = page == CursorPage::Chart ? "###0.0##" : "###0.##0";
  std::string text = dateSerialText(serial, "mm/dd/yy hh:nn:ss");
  text += "  ";
  text += formatPicture(value, picture);
  text += ' ';
  text += unitOf(plot, extremes && page == CursorPage::Data);
  return text;
}

}  // namespace zephon
