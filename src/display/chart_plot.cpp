#include "display/chart_plot.h"

#include "display/column_plot.h"
#include "display/log_views.h"
#include "protocol/dict_text.h"
#include "text/picture.h"

namespace zephon {
namespace {

constexpr double kWidth = 1.25;  // of the axis, for what is plotted
constexpr std::string_view kValuePicture = "###0.0##";

struct ChartAxis {
  const char* name;
  std::size_t key;
  const char* title;  // in the place of a text of the dictionary
  const char* unit;
};
constexpr ChartAxis kAxes[] = {{"vaxis", 139, nullptr, "V"},   {"iaxis", 140, nullptr, "A"},
                               {"paxis", 141, nullptr, "W"},   {"vngaxis", 0, "N-G", "V"},
                               {"faxis", 202, nullptr, "Hz"},  {"pfaxis", 0, "PF, CF", ""},
                               {"euaxis", 131, nullptr, "kWh"}};

// A column of the table: plot i is of column i + 1.
struct ChartSeries {
  const char* name;
  std::size_t key, second;  // of the legend; 0 for no second text
  const char* unit;
  std::size_t axis;
};
constexpr ChartSeries kSeries[] = {{"voltage", 201, 0, "V", 0},     {"current", 140, 143, "A", 1},
                                   {"power", 141, 143, "W", 2},     {"neutral-ground", 197, 0, "V", 3},
                                   {"frequency", 202, 0, "Hz", 4},  {"power factor", 129, 0, "", 5},
                                   {"crest factor", 130, 0, "", 5}, {"energy", 131, 0, "kWh", 6}};

using ChartRows = PlottedRows<9>;

std::string withUnit(std::string text, const char* unit, const char* before, const char* after) {
  return *unit == '\0' ? text : text + before + unit + after;
}

std::vector<Graph::Axis> axesOf(const Main& main) {
  std::vector<Graph::Axis> axes;
  for (const ChartAxis& one : kAxes) {
    const std::string title = one.title ? one.title : dictText(main, one.key);
    axes.push_back({one.name, withUnit(title, one.unit, " (", ")"), {}, {}, false});
  }
  return axes;
}

Graph::Plot plotOf(const Main& main, const std::shared_ptr<const ChartRows>& rows, std::size_t i) {
  const ChartSeries& one = kSeries[i];
  Graph::Plot plot;
  plot.name = one.name;
  plot.legend = dictText(main, one.key) + (one.second == 0 ? "" : ' ' + dictText(main, one.second));
  plot.unit = one.unit;
  plot.axis = one.axis;
  plot.visible = main.link.modelLine == 0 || !rows->isZero(i + 1);
  const double last = rows->row(rows->size() - 1)[i + 1];
  plot.annotation = withUnit(formatPicture(last, kValuePicture), one.unit, " ", "");
  plot.data = std::make_shared<ColumnPlot<9>>(rows, i + 1);
  return plot;
}

}  // namespace

void plotChart(Main& main) {
  const LogTable<9>& table = main.logs.chartData;
  if (table.empty()) return;
  const auto rows =
      std::make_shared<const ChartRows>(table, [](const ChartRows::Row& row) { return row[0]; });
  std::vector<Graph::Axis> axes = axesOf(main);
  std::vector<Graph::Plot> plots;
  for (std::size_t i = 0; i < std::size(kSeries); ++i) {
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
