#pragma once

#include <QWidget>

#include "screen/graph.h"

namespace zephon {

// Draws the graph: its plots over their axes, its cursors, and above them a line of legends and annotations.
// It must outlive the widget. Changes are gathered and drawn once the loop turns, and while it is hidden not
// at all.
//
// The wheel zooms time, over an axis that axis, with Ctrl all values; a drag moves time, or an axis, or with
// Ctrl both; a double click shows everything again. Keys and menu: graph_commands.cpp. A cursor that is
// dragged snaps to the points on its way.
QWidget* drawGraph(Graph& element, QWidget* parent);

// A page's place for the graph, there while the graph is and has something to show.
QWidget* graphPlace(Graph& element, QWidget* parent);

}  // namespace zephon
