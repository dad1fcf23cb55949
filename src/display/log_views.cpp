#include "display/log_views.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "display/column_plot.h"
#include "display/scope_plot.h"
#include "expert/findings_list.h"
#include "logs/cursor_text.h"
#include "logs/history_log.h"
#include "logs/history_record.h"
#include "protocol/day_serial.h"
#include "protocol/dict_text.h"

namespace zephon {
namespace {

using D = DataElements;

// A column of the history as a plot. The number stands for it in what a cursor reads off.
struct HistoryPlot {
  const char* name;
  std::size_t column;
  int number;
  std::size_t key;  // of its legend
  const char* unit;
  std::size_t axis;   // of its view
  Button D::*button;  // shows and hides it; none where it is the only one
};

struct View {
  Button D::*button;
  std::span<const HistoryPlot> plots;
};

constexpr HistoryPlot kPower[] = {{"average power", 6, 2, 82, "W", 0, nullptr}};
constexpr HistoryPlot kVoltage[] = {{"average voltage", 8, 0, 84, "V", 0, nullptr}};
constexpr HistoryPlot kExtremes[] = {{"largest voltage", 9, 6, 85, "V", 0, &D::vMaxBtn},
                                     {"smallest voltage", 10, 5, 86, "V", 0, &D::vMinBtn},
                                     {"peak current", 11, 1, 87, "A", 1, &D::iMaxBtn},
                                     {"peak power", 7, 2, 83, "W", 2, &D::pMaxBtn}};
constexpr View kViews[] = {
    {&D::PavgHistBtn, kPower}, {&D::VavgHistBtn, kVoltage}, {&D::maxMinHistBtn, kExtremes}};

struct NamedAxis {
  const char* unit;
  const char* name;
  std::size_t key;
};
constexpr NamedAxis kAxes[] = {{"V", "vaxis", 139}, {"A", "iaxis", 140}, {"W", "paxis", 141}};

using HistoryRows = PlottedRows<12>;

double momentOf(const HistoryRows::Row& row) {
  return dateSerial(momentOfRow(row));
}

// The closing row is no record.
std::shared_ptr<const HistoryRows> recordsOf(const LogTable<12>& history) {
  return std::make_shared<const HistoryRows>(std::span(history).first(historyRecords(history)), momentOf);
}

Graph::Axis axisFor(const Main& main, const char* unit) {
  const std::string_view wanted = unit;
  const auto* one = std::find_if(std::begin(kAxes), std::end(kAxes),
                                 [wanted](const NamedAxis& axis) { return axis.unit == wanted; });
  return {one->name, dictText(main, one->key) + " (" + one->unit + ")", {}, {}, true};
}

// From 0 to twice the largest value of what is on it. Without one above 0 the axis fits itself.
void widen(Graph::Axis& axis, double largest) {
  if (largest <= 0 || axis.maximum >= 2 * largest) return;
  axis.minimum = 0;
  axis.maximum = 2 * largest;
}

Graph::Plot plotFor(const Main& main, const HistoryPlot& one,
                    const std::shared_ptr<const HistoryRows>& rows) {
  Graph::Plot plot;
  plot.name = one.name;
  plot.legend = dictText(main, one.key);
  plot.unit = one.unit;
  plot.axis = one.axis;
  plot.visible = !one.button || (main.data.*one.button).value();
  plot.data = std::make_shared<ColumnPlot<12>>(rows, one.column);
  return plot;
}

void showView(Main& main, const View& view) {
  const auto rows = recordsOf(main.logs.histData);
  std::vector<Graph::Axis> axes;
  std::vector<Graph::Plot> plots;
  for (const HistoryPlot& one : view.plots) {
    if (one.axis == axes.size()) axes.push_back(axisFor(main, one.unit));
    widen(axes[one.axis], rows->largest(one.column));
    plots.push_back(plotFor(main, one, rows));
  }
  main.data.TreeView1.setVisible(false);
  showGraph(main, std::move(axes), std::move(plots));
  pointOutFinding(main);
}

bool historyStands(const Main& main) {
  return main.pages.dataOn && main.logs.shown == ShownLog::History && !main.logs.histData.empty();
}

void showExtremesButtons(Main& main, bool on) {
  for (const HistoryPlot& one : kExtremes) {
    Button& button = main.data.*one.button;
    button.setTexts(dictText(main, one.key));
    button.setVisible(on);
    button.setValue(on);  // all four at first
  }
}

bool anyViewOn(const Main& main) {
  return std::any_of(std::begin(kViews), std::end(kViews),
                     [&main](const View& view) { return (main.data.*view.button).value(); });
}

void viewOn(Main& main, const View& view) {
  for (const View& other : kViews) {
    if (&other != &view) (main.data.*other.button).setValue(false);
  }
  showExtremesButtons(main, view.button == &D::maxMinHistBtn);
  showView(main, view);
}

// Also when another view takes over: then its graph comes next.
void viewOff(Main& main) {
  showExtremesButtons(main, false);
  if (anyViewOn(main)) return;
  main.frame.CWGraph2.setUp({}, {}, {});
  main.frame.CWGraph2.setVisible(false);
  main.data.TreeView1.setVisible(true);
}

std::optional<std::size_t> plotNamed(const Graph& graph, std::string_view name) {
  const auto& plots = graph.plots();
  const auto found =
      std::find_if(plots.begin(), plots.end(), [name](const Graph::Plot& plot) { return plot.name == name; });
  if (found == plots.end()) return {};
  return static_cast<std::size_t>(found - plots.begin());
}

void showExtreme(Main& main, const HistoryPlot& one, bool on) {
  Graph& graph = main.frame.CWGraph2;
  const auto plot = plotNamed(graph, one.name);
  if (!historyStands(main) || !plot) return;
  graph.setPlotVisible(*plot, on);
  const auto onAxis = [&](const Graph::Plot& other) { return other.visible && other.axis == one.axis; };
  graph.setAxisVisible(one.axis, std::any_of(graph.plots().begin(), graph.plots().end(), onAxis));
}

// A chart's plots have the numbers of their places.
int numberOf(const Main& main, std::size_t plot) {
  const std::string& name = main.frame.CWGraph2.plots().at(plot).name;
  for (const View& view : kViews) {
    for (const HistoryPlot& one : view.plots) {
      if (name == one.name) return one.number;
    }
  }
  return static_cast<int>(plot);
}

void readOff(Main& main, std::size_t cursor) {
  if (main.capture.pageShown) return scopeCursorMoved(main, cursor);
  Graph& graph = main.frame.CWGraph2;
  const Graph::Cursor& at = graph.cursors().at(cursor);
  if (!at.plot) return;
  const CursorPage page = main.pages.chartOn ? CursorPage::Chart : CursorPage::Data;
  const bool extremes = main.data.maxMinHistBtn.value();
  Graph::Cursor read = at;
  read.reading = cursorText(at.x, at.y, numberOf(main, *at.plot), page, extremes);
  graph.setAnnotation(*at.plot, read.reading);
  graph.setCursor(cursor, read);
}

}  // namespace

void wireLogViews(Main& main) {
  for (const View& view : kViews) {
    (main.data.*view.button).onChange = [&main, &view](bool on) {
      if (!historyStands(main)) return;
      on ? viewOn(main, view) : viewOff(main);
    };
  }
  for (const HistoryPlot& one : kExtremes) {
    (main.data.*one.button).onChange = [&main, &one](bool on) { showExtreme(main, one, on); };
  }
  main.frame.CWGraph2.onCursor = [&main](std::size_t cursor, std::optional<std::size_t> /*point*/) {
    readOff(main, cursor);
  };
}

void showGraph(Main& main, std::vector<Graph::Axis> axes, std::vector<Graph::Plot> plots) {
  Graph& graph = main.frame.CWGraph2;
  std::vector<Graph::Cursor> cursors;
  const auto seen = std::find_if(plots.begin(), plots.end(), [](const Graph::Plot& plot) {
    return plot.visible && plot.data && plot.data->size() > 0;
  });
  if (seen != plots.end()) {
    const PlotData& data = *seen->data;
    const auto plot = static_cast<std::size_t>(seen - plots.begin());
    const std::size_t last = data.size() - 1;
    const auto value = [&data](std::size_t index) { return std::isnan(data.y(index)) ? 0 : data.y(index); };
    cursors = {{"Cursor-1", true, data.x(0), value(0), false, plot},
               {"Cursor-2", true, data.x(last), value(last), false, plot}};
  }
  graph.setX(Graph::XKind::Date, {});
  graph.setXRange({});
  graph.setUp(std::move(axes), std::move(plots), std::move(cursors));
  graph.setVisible(true);
}

}  // namespace zephon
