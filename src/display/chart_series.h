#pragma once

#include <memory>
#include <string>
#include <vector>

#include "form/main.h"

namespace zephon {

// The eight quantities of a chart as plots on a graph: plot i is of chartData's column i + 1, each on its
// axis. Power and crest factor share one.
inline constexpr std::size_t kChartPlots = 8;

// All of the axes, hidden, with their titles in the language in use.
std::vector<Graph::Axis> chartAxes(const Main& main);

// A plot, hidden and without an annotation.
Graph::Plot chartPlot(const Main& main, std::size_t plot, std::shared_ptr<const PlotData> data);

// A value with its unit: "118.25 V", or of the second line's voltages as they are sampled, "118 V".
std::string chartAnnotation(std::size_t plot, double value, bool sampled = false);

// A row written when the device answered nothing: all quantities are zero. A first-line device cannot measure
// that; of the second line it may be an outage.
bool isChartGap(const std::array<double, 9>& row);

}  // namespace zephon
