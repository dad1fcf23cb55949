#pragma once

#include "form/main.h"

namespace zephon {

// Rows of the live chart that are in no file of the user's: they go to a journal at once.

// Brings the journal up to the finished rows. The status line tells once that it can't be written; the
// recording goes on.
void keepChartRows(Main& main);

// The chart in chartData has been saved as a .csv file, all finished rows of it: that ends the journal.
void chartSaved(Main& main);

// The chart page was left with rows, and no other page has taken its place: they can still be saved and
// analysed.
bool chartWasLeft(const Main& main);

// At the program's start: tells in the status line where the rows are that an earlier run has left unsaved.
void tellUnsavedCharts(Main& main);

}  // namespace zephon
