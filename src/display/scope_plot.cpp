#include "display/scope_plot.h"

#include <algorithm>
#include <cmath>

#include "display/scope_channels.h"
#include "logs/cursor_text.h"
#include "protocol/dict_text.h"
#include "protocol/scope_samples.h"
#include "text/picture.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyOneShot = 184;
constexpr char kLevelPicture[] = "###0.##0";
constexpr const char* kBetween = "   ";  // two readings

// The graph's cursors.
constexpr std::size_t kLevel = 0;
constexpr std::size_t kPoint = 1;

// A channel of one capture.
class Trace : public PlotData {
 public:
  Trace(std::vector<double> samples, double periodMs) : samples_(std::move(samples)), periodMs_(periodMs) {}
  std::size_t size() const override { return samples_.size(); }
  double x(std::size_t index) const override { return static_cast<double>(index) * periodMs_; }
  double y(std::size_t index) const override { return samples_[index]; }

 private:
  std::vector<double> samples_;
  double periodMs_;
};

bool isOn(const Main& main, const ScopeChannel& channel) {
  return (main.scope.*channel.toggle).value();
}

Graph::Axis axisOf(const Main& main, const ScopeChannel& channel) {
  const double top = main.capture.*channel.scale * kDivisionsUp;
  const std::string title = dictText(main, channel.key) + " (" + channel.unit + ")";
  return {channel.axis, title, -top, top, isOn(main, channel), main.capture.*channel.scale};
}

Graph::Plot plotOf(const Main& main, const ScopeChannel& channel, std::size_t axis) {
  Graph::Plot plot;
  plot.name = channel.plot;
  plot.legend = dictText(main, channel.key);
  plot.unit = channel.unit;
  plot.axis = axis;
  plot.visible = isOn(main, channel);
  return plot;
}

Graph::Cursor levelCursor(const Main& main) {
  const Capture& capture = main.capture;
  Graph::Cursor cursor;
  cursor.name = "Cursor-1";
  cursor.horizontal = true;
  cursor.y = capture.oneShotLevel;
  if (capture.oneShotMode == 0) return cursor;
  cursor.visible = true;
  cursor.plot = static_cast<std::size_t>(capture.oneShotMode - 1);
  cursor.reading = dictText(main, kKeyOneShot) + ' ' + formatPicture(cursor.y, kLevelPicture) + ' ' +
                   kScopeChannels[*cursor.plot].unit;
  return cursor;
}

// The trace on which a point can be read off: the one on which it was before, or else the first.
std::optional<std::size_t> traceFor(const Graph& graph, std::optional<std::size_t> before) {
  const auto& plots = graph.plots();
  if (before && plots[*before].data) return before;
  const auto found = std::find_if(plots.begin(), plots.end(), [](const auto& plot) { return plot.data; });
  if (found == plots.end()) return {};
  return static_cast<std::size_t>(found - plots.begin());
}

// Stays at its moment while the captures change under it. It waits at the edge, silent, until it is moved.
Graph::Cursor pointCursor(const Main& main, bool moved) {
  const Graph& graph = main.frame.CWGraph2;
  Graph::Cursor cursor = graph.cursors()[kPoint];
  cursor.name = "Cursor-2";
  const auto plot = traceFor(graph, cursor.plot);
  cursor.visible = plot.has_value();
  if (!plot) return cursor;
  const PlotData& trace = *graph.plots()[*plot].data;
  const double samples = std::round(cursor.x / samplePeriodMs(*captureKind(main.capture.capturedMode)));
  const auto index =
      static_cast<std::size_t>(std::clamp(samples, 0.0, static_cast<double>(trace.size() - 1)));
  cursor.plot = plot;
  cursor.x = trace.x(index);
  cursor.y = trace.y(index);
  if (moved || !cursor.reading.empty())
    cursor.reading = cursorText(cursor.x, cursor.y, static_cast<int>(*plot), CursorPage::Scope);
  return cursor;
}

// What the cursors on a plot read off.
std::string annotationOf(const Graph& graph, std::size_t plot) {
  std::string text;
  for (const Graph::Cursor& cursor : graph.cursors()) {
    if (!cursor.visible || cursor.plot != plot || cursor.reading.empty()) continue;
    text += (text.empty() ? "" : kBetween) + cursor.reading;
  }
  return text;
}

void setCursors(Main& main, bool pointMoved) {
  if (!main.capture.pageShown) return;
  Graph& graph = main.frame.CWGraph2;
  graph.setCursor(kLevel, levelCursor(main));
  graph.setCursor(kPoint, pointCursor(main, pointMoved));
  for (std::size_t i = 0; i < kScopeChannels.size(); ++i) graph.setAnnotation(i, annotationOf(graph, i));
}

void showTrace(Main& main, std::size_t i, const CaptureKind* kind) {
  const std::vector<double>& samples = main.capture.*kScopeChannels[i].samples;
  const bool drawn = kind && !samples.empty() && isOn(main, kScopeChannels[i]);
  main.frame.CWGraph2.setData(i, drawn ? std::make_shared<Trace>(samples, samplePeriodMs(*kind)) : nullptr);
}

}  // namespace

void setUpScopeGraph(Main& main) {
  std::vector<Graph::Axis> axes;
  std::vector<Graph::Plot> plots;
  for (const ScopeChannel& channel : kScopeChannels) {
    plots.push_back(plotOf(main, channel, axes.size()));
    axes.push_back(axisOf(main, channel));
  }
  Graph& graph = main.frame.CWGraph2;
  graph.setX(Graph::XKind::Number, dictText(main, words::kSpan) + " (ms)");
  graph.setUp(std::move(axes), std::move(plots), std::vector<Graph::Cursor>(2));
  showCapture(main);
  graph.setVisible(true);
}

void showCapture(Main& main) {
  if (!main.capture.pageShown) return;
  const double division = kMsPerDivision * main.capture.capturedXScale;
  main.frame.CWGraph2.setXRange(std::pair(0.0, division * kTimeDivisions));
  main.frame.CWGraph2.setXDivision(division);
  const CaptureKind* kind = captureKind(main.capture.capturedMode);
  for (std::size_t i = 0; i < kScopeChannels.size(); ++i) showTrace(main, i, kind);
  showCursors(main);
}

void showChannels(Main& main) {
  if (!main.capture.pageShown) return;
  for (std::size_t i = 0; i < kScopeChannels.size(); ++i) {
    const bool on = isOn(main, kScopeChannels[i]);
    main.frame.CWGraph2.setPlotVisible(i, on);
    main.frame.CWGraph2.setAxisVisible(i, on);
  }
  showCapture(main);
}

void showScale(Main& main, std::size_t channel) {
  if (!main.capture.pageShown) return;
  main.frame.CWGraph2.setAxis(channel, axisOf(main, kScopeChannels[channel]));
}

void showCursors(Main& main) {
  setCursors(main, false);
}

void scopeCursorMoved(Main& main, std::size_t cursor) {
  if (cursor == kLevel) main.capture.oneShotLevel = main.frame.CWGraph2.cursors()[kLevel].y;
  setCursors(main, cursor == kPoint);
}

}  // namespace zephon
