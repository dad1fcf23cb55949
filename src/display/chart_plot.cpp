#include "display/chart_plot.h"

#include "display/chart_series.h"
#include "display/column_plot.h"
#include "display/log_views.h"

namespace zephon {
namespace {

constexpr double kWidth = 1.25;  // of the axis, for what is plotted

using ChartRows = PlottedRows<9>;

Graph::Plot plotOf(const Main& main, const std::shared_ptr<const ChartRows>& rows, std::size_t i) {
  Graph::Plot plot = chartPlot(main, i, std::make_shared<ColumnPlot<9>>(rows, i + 1));
  plot.visible = main.link.modelLine == 0 || !rows->isZero(i + 1);
  plot.annotation = chartAnnotation(i, rows->row(rows->size() - 1)[i + 1]);
  return plot;
}

}  // namespace

void plotChart(Main& main) {
  const LogTable<9>& table = main.logs.chartData;
  if (table.empty()) return;
  const auto rows = std::make_shared<const ChartRows>(
      table, [](const ChartRows::Row& row) { return row[0]; },
      main.link.modelLine == 0 ? isChartGap : nullptr);
  std::vector<Graph::Axis> axes = chartAxes(main);
  std::vector<Graph::Plot> plots;
  for (std::size_t i = 0; i < kChartPlots; ++i) {
    plots.push_back(plotOf(main, rows, i));
    if (plots.back().visible) axes[plots.back().axis].visible = true;
  }
  const double first = rows->moment(0);
  const double last = rows->moment(rows->size() - 1);
  showGraph(main, std::move(axes), std::move(plots));
  if (last > first) main.frame.CWGraph2.setXRange(std::pair(first, first + (last - first) * kWidth));
  main.logs.shown = ShownLog::Chart;
  main.frame.saveBtn.setVisible(true);
  main.frame.expertBtn.setVisible(true);
}

}  // namespace zephon
