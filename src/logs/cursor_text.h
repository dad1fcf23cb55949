#pragma once

#include <string>

namespace zephon {

// What a cursor on a graph reads off.

enum class CursorPage { Data, Scope, Chart };

// The date, value and unit under a cursor: "05/01/13 10:30:00  118.250 V". `x` is a date serial, on the Scope
// page milliseconds: "12.500 ms  118.250 V". Units go by the plot's number; `extremes` is for the Data page
// with its extremes on show, where plots 1, 2, 5 and 6 tell which.
std::string cursorText(double x, double value, int plot, CursorPage page, bool extremes = false);

}  // namespace zephon
