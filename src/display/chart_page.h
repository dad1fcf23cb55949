#pragma once

#include "display/page_exits.h"
#include "form/main.h"

namespace zephon {

// The chart page: records the live quantities at an interval of the user's into chartData and draws them, for
// as long as ChartBtn is on. The recording outlives the page and the link: the rows that stand are gone on
// with.

// Wires chartTimer, chartIntervalSlide and the eight plot buttons.
void wireChartPage(Main& main, const PageExits& exits);

// The page has been laid out: the recording begins, or goes on.
void startChartPage(Main& main);

// The page is left, or another one is laid out: takes away the graph.
void clearChartPage(Main& main);

}  // namespace zephon
