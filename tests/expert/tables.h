#pragma once

#include <set>
#include <vector>

#include "expert/rules.h"

// Logs written by hand, a cell at a time, on a ground at which no rule finds anything.
namespace zephon::testing_support {

// The slots that are raised.
inline std::set<int> raised(const std::array<bool, kFindingSlots>& flags) {
  std::set<int> slots;
  for (std::size_t slot = 0; slot < kFindingSlots; ++slot) {
    if (flags[slot]) slots.insert(static_cast<int>(slot));
  }
  return slots;
}
inline std::set<int> raised(const Analysis& found) {
  return raised(found.flags);
}

inline LoggedDevice device(int nominal = 120, int rated = 0, int modelLine = 0) {
  return {modelLine, modelLine == 1 ? "2.00" : "1.KD1", nominal, rated == 0 ? nominal : rated, 0};
}

// What a cell is to be. Volts are shares of the assumed line voltage.
struct Cells {
  std::size_t column;
  double value;
  std::size_t count = 1;
  std::size_t from = 0;
  std::size_t step = 1;  // every so many rows
  double perDay = 0;     // what is added from one day of 48 rows to the next, or from row to row of a chart
};

// A column that rises from row to row (or, in a history, from day to day).
inline Cells ramp(std::size_t column, double value, double perDay) {
  return {column, value, 100'000, 0, 1, perDay};
}

// `rows` rows of a history, the last of them the moment of the download, at 100 % of the line voltage.
inline Logs history(std::size_t rows, int volts, const std::vector<Cells>& changes = {}) {
  Logs logs;
  for (std::size_t row = 0; row < rows; ++row) {
    const int halfHour = static_cast<int>(row);
    const double day = 1 + halfHour / 48 % 28, month = 1 + halfHour / 48 / 28;
    const double hour = halfHour / 2 % 24, minute = halfHour % 2 * 30;
    const double v = row + 1 < rows ? volts : 0;
    logs.histData.push_back({13, day, month, hour, minute, 0, 500, 800, v, v, v, 5});
  }
  for (const Cells& cells : changes) {
    const double scale = cells.column >= 8 && cells.column <= 10 ? volts : 1;
    for (std::size_t i = 0, row = cells.from; i < cells.count && row + 1 < rows; ++i, row += cells.step)
      logs.histData[row][cells.column] = cells.value * scale + cells.perDay * static_cast<double>(row / 48);
  }
  return logs;
}

// `rows` rows of a chart, a second apart, the last of them being filled.
inline Logs chart(std::size_t rows, int volts, const std::vector<Cells>& changes = {}) {
  Logs logs;
  for (std::size_t row = 0; row < rows; ++row) {
    const double time = 41'395 + static_cast<double>(row) / 86'400;
    logs.chartData.push_back({time, static_cast<double>(volts), 1, 100, 0.5, 60, 1, 1.41, 0});
  }
  for (const Cells& cells : changes) {
    const double scale = cells.column == 1 ? volts : 1;
    for (std::size_t i = 0, row = cells.from; i < cells.count && row < rows; ++i, row += cells.step)
      logs.chartData[row][cells.column] = cells.value * scale + cells.perDay * static_cast<double>(row);
  }
  return logs;
}

// An event of a code at an hour of days from the first of May on; day 40 is the ninth of June.
struct Event {
  int code;
  int day;
  int hour = 0;
};
inline Logs events(const std::vector<Event>& list) {
  Logs logs;
  for (const auto& [code, day, hour] : list)
    logs.tsData.push_back(
        {13, day > 31 ? day - 31.0 : day, day > 31 ? 6.0 : 5.0, 1.0 * hour, 0, 0, 1.0 * code, 0});
  return logs;
}

}  // namespace zephon::testing_support
