#pragma once

#include "form/main.h"

namespace zephon {

// The scope's picture on CWGraph2: a plot and an axis a channel over the time in milliseconds since the first
// sample, the one-shot level as a cursor, and a cursor that reads off a point of each capture. All of it does
// nothing while the graph is another page's.

// Takes the graph: what stands of the last capture is there again.
void setUpScopeGraph(Main& main);

// Draws the last capture: the channels that are on and that it has.
void showCapture(Main& main);

// Shows and clears the channels by their buttons.
void showChannels(Main& main);

// The axis of a channel by its scale.
void showScale(Main& main, std::size_t channel);

// The level as a line on the armed channel, hidden while neither is armed; the other cursor as long as there
// is a trace for it to stand on.
void showCursors(Main& main);

// The user has let a cursor go: the level is where it is now, or the point is read off from now on.
void scopeCursorMoved(Main& main, std::size_t cursor);

}  // namespace zephon
