#pragma once

#include <string>
#include <vector>

#include "form/logs.h"

namespace zephon {

// The historical log as graphs, and what a cursor on a graph reads off.

enum class HistoryView {
  AveragePower,
  AverageVoltage,
  PeakPower,
  LargestVoltage,
  SmallestVoltage,
  PeakCurrent
};

struct AxisRange {
  double minimum = 0;
  double maximum = 0;
  bool operator==(const AxisRange&) const = default;
};

// One plot: a point a half hour, at the half hour's start. The X axis runs from the first point to the last,
// the Y axis from 0 to twice the largest value. Without rows there are no points and both axes are 0 to 0.
struct HistorySeries {
  std::vector<double> x;  // date serials
  std::vector<double> y;
  AxisRange xAxis;
  AxisRange yAxis;
};

HistorySeries historySeries(const LogTable<12>& history, HistoryView view);

enum class CursorPage { Data, Scope, Chart };

// The date, value and unit under a cursor: "05/01/13 10:30:00  118.250 V". Units go by the plot's number;
// `extremes` is for the Data page with its extremes on show, where plots 1, 2, 5 and 6 tell which.
std::string cursorText(double serial, double value, int plot, CursorPage page, bool extremes = false);

}  // namespace zephon
