#include "display/scope_plot.h"

#include "display/scope_channels.h"
#include "protocol/dict_text.h"
#include "protocol/scope_samples.h"
#include "text/picture.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyTime = 56;
constexpr std::size_t kKeyOneShot = 184;
constexpr char kLevelPicture[] = "###0.##0";

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
  return {channel.axis, title, -top, top, isOn(main, channel)};
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

Graph::Cursor levelCursor(const Capture& capture) {
  Graph::Cursor cursor;
  cursor.name = "Cursor-1";
  cursor.horizontal = true;
  cursor.visible = capture.oneShotMode != 0;
  cursor.y = capture.oneShotLevel;
  if (cursor.visible) cursor.plot = static_cast<std::size_t>(capture.oneShotMode - 1);
  return cursor;
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
  graph.setX(Graph::XKind::Number, dictText(main, kKeyTime) + " (ms)");
  graph.setUp(std::move(axes), std::move(plots), {levelCursor(main.capture)});
  showCapture(main);
  showLevel(main);
  graph.setVisible(true);
}

void showCapture(Main& main) {
  if (!main.capture.pageShown) return;
  const double width = kMsPerDivision * kTimeDivisions * main.capture.capturedXScale;
  main.frame.CWGraph2.setXRange(std::pair(0.0, width));
  const CaptureKind* kind = captureKind(main.capture.capturedMode);
  for (std::size_t i = 0; i < kScopeChannels.size(); ++i) showTrace(main, i, kind);
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
  const double top = main.capture.*kScopeChannels[channel].scale * kDivisionsUp;
  main.frame.CWGraph2.setAxisRange(channel, -top, top);
}

void showLevel(Main& main) {
  if (!main.capture.pageShown) return;
  Graph& graph = main.frame.CWGraph2;
  const Graph::Cursor cursor = levelCursor(main.capture);
  graph.setCursor(0, cursor);
  for (std::size_t i = 0; i < kScopeChannels.size(); ++i) {
    const std::string level = dictText(main, kKeyOneShot) + ' ' +
                              formatPicture(main.capture.oneShotLevel, kLevelPicture) + ' ' +
                              kScopeChannels[i].unit;
    graph.setAnnotation(i, cursor.plot == i ? level : "");
  }
}

void takeLevel(Main& main) {
  if (!main.capture.pageShown) return;
  const double level = main.frame.CWGraph2.cursors().front().y;
  if (main.capture.oneShotLevel == level) return;
  main.capture.oneShotLevel = level;
  showLevel(main);
}

}  // namespace zephon
