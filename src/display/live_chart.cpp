#include "display/live_chart.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "display/chart_series.h"
#include "display/chart_table.h"
#include "display/log_views.h"
#include "protocol/firmware_gates.h"

namespace zephon {
namespace {

constexpr std::size_t kLineVoltage = 0;
constexpr std::size_t kNeutralGround = 3;

constexpr char kNoReading[] = "\u2013";
constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();

// A column of the recording as a plot. It may be asked for rows of a table that is gone.
class LiveColumn : public PlotData {
 public:
  LiveColumn(const Main& main, std::size_t column) : main_(main), column_(column) {}
  std::size_t size() const override { return finishedChartRows(main_); }
  double x(std::size_t index) const override {
    if (index >= size()) return kNothing;
    return plottedMoment(main_.logs.chartData, main_.recording, index);
  }
  double y(std::size_t index) const override {
    if (index >= size()) return kNothing;
    const double value = main_.logs.chartData[index][column_];
    return value == 0 && isInGap(main_.recording, index) ? kNothing : value;
  }

 private:
  const Main& main_;
  std::size_t column_;
};

bool isShown(const Main& main, std::size_t plot) {
  if (plot == kNeutralGround && !recordsNeutralGround(kindOf(main.link))) return false;
  return main.recording.chartPlotOn[plot];
}

std::string annotationOf(const Main& main, std::size_t plot) {
  const std::size_t rows = finishedChartRows(main);
  if (rows == 0) return {};
  if (isInGap(main.recording, rows - 1)) return kNoReading;
  return chartAnnotation(plot, main.logs.chartData[rows - 1][plot + 1], main.link.modelLine == 1);
}

bool isLiveChart(const Graph& graph) {
  return graph.plots().size() == kChartPlots;
}

// A cursor needs a point to stand on.
bool cursorsAreDue(const Graph& graph) {
  return graph.cursors().empty() &&
         std::any_of(graph.plots().begin(), graph.plots().end(), [](const auto& one) { return one.visible; });
}

}  // namespace

void choosePlots(Main& main) {
  std::array<bool, kChartPlots> measured{};
  measured.fill(main.link.modelLine == 0);
  measured[kLineVoltage] = true;
  measured[kNeutralGround] = recordsNeutralGround(kindOf(main.link));
  if (std::exchange(main.recording.measuredPlots, measured) != measured)
    main.recording.chartPlotOn = measured;
}

void showLiveChart(Main& main) {
  std::vector<Graph::Axis> axes = chartAxes(main);
  std::vector<Graph::Plot> plots;
  for (std::size_t i = 0; i < kChartPlots; ++i) {
    Graph::Plot plot = chartPlot(main, i, std::make_shared<LiveColumn>(main, i + 1));
    plot.visible = isShown(main, i);
    plot.annotation = annotationOf(main, i);
    if (plot.visible) axes[plot.axis].visible = true;
    plots.push_back(std::move(plot));
  }
  showGraph(main, std::move(axes), std::move(plots));
}

void showLiveRow(Main& main) {
  Graph& graph = main.frame.CWGraph2;
  if (!isLiveChart(graph)) return;
  if (cursorsAreDue(graph)) return showLiveChart(main);
  if (!graph.viewPaused()) {
    for (std::size_t i = 0; i < kChartPlots; ++i) graph.setAnnotation(i, annotationOf(main, i));
  }
  graph.grown();
}

void showLivePlot(Main& main, std::size_t plot) {
  Graph& graph = main.frame.CWGraph2;
  if (!isLiveChart(graph)) return;
  graph.setPlotVisible(plot, isShown(main, plot));
  const std::size_t axis = graph.plots()[plot].axis;
  graph.setAxisVisible(axis, std::any_of(graph.plots().begin(), graph.plots().end(), [axis](const auto& one) {
                         return one.visible && one.axis == axis;
                       }));
}

}  // namespace zephon
