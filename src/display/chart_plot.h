#pragma once

#include "form/main.h"

namespace zephon {

// chartData as eight plots on CWGraph2, each quantity on its axis; power and crest factor share one. A
// quarter of the width stays free at the right. A quantity that the second line did not measure is not shown.
// The table has to stay as it is while it is plotted.
void plotChart(Main& main);

}  // namespace zephon
