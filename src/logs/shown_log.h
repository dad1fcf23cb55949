#pragma once

#include "form/main.h"

namespace zephon {

// The log on the data page, as a tree or as a graph. Both read the tables where they lie, so they are taken
// away before a table is replaced.

// Takes away what is shown, hides where it stood with everything that belongs to it, and leaves the tables.
void hideShownLog(Main& main);

// Takes away the list of what was found in a log, and what it has picked out.
void hideFindings(Main& main);

// Takes away what is shown and empties the tables: of all logs there is one at a time.
void forgetLogs(Main& main);

// Shows the log of events, or the history, that still stands in its table, unless the device at hand is
// another one than its own. Without a device the line is again the log's own: a dead line has been tried as the
// other one.
void showLogAgain(Main& main);

// The tree of tsData, or an empty one without rows; it can be saved and analysed.
void showEvents(Main& main);

// The tree of histData with the buttons of its views. An empty log has an empty tree and can be saved.
void showHistory(Main& main);

}  // namespace zephon
