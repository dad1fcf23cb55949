#pragma once

#include <vector>

#include "form/main.h"

namespace zephon {

// The historical log as graphs on CWGraph2: the average power, the average voltage, or the four extremes, of
// which each can be shown or hidden. The three views exclude each other and the tree; without one the tree
// stands. Their buttons do nothing while no history is on the data page.
//
// The graph's cursors read off date and value of a point, here and on every other page that shows it.

// Wires PavgHistBtn, VavgHistBtn, maxMinHistBtn, vMaxBtn, vMinBtn, iMaxBtn, pMaxBtn and the cursors.
void wireLogViews(Main& main);

// Sets the graph up over dates, with its two cursors at the ends of the first plot that is visible, and shows
// it.
void showGraph(Main& main, std::vector<Graph::Axis> axes, std::vector<Graph::Plot> plots);

}  // namespace zephon
