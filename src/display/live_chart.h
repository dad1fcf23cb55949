#pragma once

#include "form/main.h"

namespace zephon {

// The live chart on CWGraph2: eight plots read from chartData where it lies, which grow as rows are finished.
// Which of them are shown is told by chartPlotOn; the neutral-ground voltage only of a device that measures
// it.

// Sets chartPlotOn to the plots that the device measures, when it measures others than the one before. The
// second line measures voltages alone: its other columns keep the values that stood, and are drawn on demand.
void choosePlots(Main& main);

// Shows the recording anew, with all rows that stand.
void showLiveChart(Main& main);

// Shows a row more. While the view is paused the annotations stay as they are: a cursor may have written
// them.
void showLiveRow(Main& main);

// Shows or hides a plot, with its axis, by chartPlotOn.
void showLivePlot(Main& main, std::size_t plot);

}  // namespace zephon
