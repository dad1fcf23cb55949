#pragma once

#include "form/main.h"

namespace zephon {

// The live chart's rows in chartData, the last of which is the one being filled.

// The table for a recording: a new one of one row, or the one that stands, with a row to be filled at its
// end. A chart that came from a device's memory or a file is gone on with.
void takeUpChart(Main& main);

// Finishes the row being filled, and adds the next one: the latest readings, or for a device that answered
// nothing zeros, which count as a gap.
void finishChartRow(Main& main, bool gap);

// How many rows are finished; none of a chart that is no live one.
std::size_t finishedChartRows(const Main& main);

// The moment of a row as it is plotted. It never falls: where the computer's clock was set back, the rows
// stand at the latest moment until it has caught up.
double plottedMoment(const LogTable<9>& table, const Recording& recording, std::size_t row);

bool isInGap(const Recording& recording, std::size_t row);

}  // namespace zephon
