#pragma once

#include "form/main.h"

namespace zephon {

// The live chart on CWGraph2: eight plots read from chartData where it lies, which grow as rows are finished.
// Which of them are shown is told by chartPlotOn; the neutral-ground voltage only of a device that measures
// it.

// Shows the recording anew, with all rows that stand.
void showLiveChart(Main& main);

// Shows a row more. While the view is paused the annotations stay as they are: a cursor may have written
// them.
void showLiveRow(Main& main);

// Shows or hides a plot, with its axis, by chartPlotOn.
void showLivePlot(Main& main, std::size_t plot);

// The second line tells the neutral-ground voltage on 120 V from firmware "2.00" on.
bool measuresNeutralGround(const Link& link);

}  // namespace zephon
