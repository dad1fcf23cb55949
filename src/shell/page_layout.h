#pragma once

#include "form/main.h"

namespace zephon {

// The seven pages lie on the same ground: the one whose flag is set is shown and the others are hidden. What
// a page shows depends on the model line and on the firmware. With no flag set only the page buttons stand.
void pageLayout(Main& main);

// Each clears its page's flag, stops its timers and hides its elements.
void hideScopePage(Main& main);
void hideChartPage(Main& main);
void hideSetupPage(Main& main);
void hideMeasurementPage(Main& main);
void hideOutletsPage(Main& main);
void hideDataPage(Main& main);
void hideComPage(Main& main);

// A page has been switched off: where no other is wanted and the chart's rows stand, its elements are there
// again, so that it can still be saved and analysed.
void showLeftChart(Main& main);

}  // namespace zephon
