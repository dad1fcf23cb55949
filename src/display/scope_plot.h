#pragma once

#include "form/main.h"

namespace zephon {

// The scope's picture on CWGraph2: a plot and an axis a channel over the time in milliseconds since the first
// sample, and the one-shot level as a cursor. All of it does nothing while the graph is another page's.

// Takes the graph: what stands of the last capture is there again.
void setUpScopeGraph(Main& main);

// Draws the last capture: the channels that are on and that it has.
void showCapture(Main& main);

// Shows and clears the channels by their buttons.
void showChannels(Main& main);

// The axis of a channel by its scale.
void showScale(Main& main, std::size_t channel);

// The level as a line on the armed channel; hidden while neither is armed.
void showLevel(Main& main);

// Takes over what the user has dragged the level to.
void takeLevel(Main& main);

}  // namespace zephon
