#include <algorithm>
#include <cmath>

#include "window/graph_axes.h"
#include "window/graph_canvas.h"

// Which part of the graph is in view.
namespace zephon {
namespace {

constexpr double kHour = 1.0 / 24;
constexpr double kHeadroom = 0.05;
// The narrowest view, as a share of the value that it lies at: some ten seconds of a date; of values a
// fiftieth, so that a quantity that hardly moves is not blown up.
constexpr double kLeastX = 3e-9;
constexpr double kLeastY = 0.02;
constexpr double kLeastOwn = 1e-9;

QCPRange both(const std::optional<QCPRange>& range, const QCPRange& other) {
  return range ? range->expanded(other) : other;
}

}  // namespace

void GraphCanvas::fitX() {
  std::optional<QCPRange> all;  // hidden plots too: the view stays when one is switched
  for (const PlotLine* line : lines_) {
    bool found = false;
    const QCPRange one = line->getKeyRange(found);
    if (found) all = both(all, one);
  }
  if (span_ == Span::LastHour) {
    if (all) xAxis->setRange(all->upper - kHour, all->upper);
    return;
  }
  if (const auto& given = element_.xRange()) all = QCPRange(given->first, given->second);
  if (all) xAxis->setRange(roomy(*all, 0, kLeastX));
}

void GraphCanvas::fitY(std::size_t axis) {
  const Graph::Axis& one = element_.axes()[axis];
  std::optional<QCPRange> all;
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const Graph::Plot& plot = element_.plots()[i];
    bool found = false;
    const QCPRange values = lines_[i]->getValueRange(found);
    if (found && plot.visible && plot.axis == axis) all = both(all, values);
  }
  const bool blank = !all || (all->lower == 0 && all->upper == 0);
  const QCPRange fitting = blank ? QCPRange(0, 1) : roomy(*all, kHeadroom, kLeastY);
  const double lower = one.minimum.value_or(fitting.lower);
  const double upper = one.maximum.value_or(fitting.upper);
  axes_[axis].axis->setRange(roomy({std::min(lower, upper), std::max(lower, upper)}, 0, kLeastOwn));
}

// A range that is given anew ends the view that the user has chosen of that axis. Not over dates: there the
// range moves on with every row.
void GraphCanvas::takeRanges() {
  for (std::size_t i = 0; i < axes_.size(); ++i) {
    YAxis& one = axes_[i];
    const Graph::Axis& given = element_.axes()[i];
    if (one.minimum != given.minimum || one.maximum != given.maximum) one.own = false;
    one.minimum = given.minimum;
    one.maximum = given.maximum;
  }
  const bool another = givenX_ != element_.xRange();
  givenX_ = element_.xRange();
  if (another && element_.xKind() == Graph::XKind::Number) span_ = Span::All;
}

void GraphCanvas::fitRanges() {
  if (span_ != Span::Own) fitX();
  for (std::size_t i = 0; i < axes_.size(); ++i) {
    if (!axes_[i].own) fitY(i);
  }
}

void GraphCanvas::show(Span span) {
  span_ = span;
  if (span == Span::All) {
    for (YAxis& one : axes_) one.own = false;
  }
  fitRanges();
  replot(QCustomPlot::rpQueuedReplot);
}

GraphCanvas::YAxis* GraphCanvas::yAxisOf(const QCPAxis* axis) {
  const auto found =
      std::find_if(axes_.begin(), axes_.end(), [axis](const YAxis& y) { return y.axis == axis; });
  return found == axes_.end() ? nullptr : &*found;
}

void GraphCanvas::move(QCPAxis& axis, double by) {
  if (YAxis* y = yAxisOf(&axis)) {
    y->own = true;
  } else {
    span_ = Span::Own;
  }
  axis.moveRange(by);
  replot(QCustomPlot::rpQueuedReplot);
}

// Within what an axis can tell apart, and what there is to see.
void GraphCanvas::scale(QCPAxis& axis, double factor, double about) {
  const QCPRange range = axis.range();
  const double lies = std::max({std::abs(range.lower), std::abs(range.upper), 1e-6});
  const double width = range.size() * factor;
  if ((factor < 1 && width < lies * (&axis == xAxis ? kLeastX / 10 : kLeastOwn)) || width > lies * 1e4)
    return;
  move(axis, 0);
  axis.scaleRange(factor, about);
}

void GraphCanvas::pan(double right, double up) {
  if (right != 0) move(*xAxis, right * xAxis->range().size());
  for (YAxis& one : axes_) {
    if (up != 0) move(*one.axis, up * one.axis->range().size());
  }
}

void GraphCanvas::zoomTime(double factor) {
  const auto cursor = activeCursor();
  double about = xAxis->range().center();
  if (cursor && !cursors_[*cursor]->horizontal() && xAxis->range().contains(element_.cursors()[*cursor].x)) {
    about = element_.cursors()[*cursor].x;
  }
  scale(*xAxis, factor, about);
}

void GraphCanvas::zoomValues(double factor) {
  for (YAxis& one : axes_) scale(*one.axis, factor, one.axis->range().center());
}

// Brings an x that is out of view into its middle.
void GraphCanvas::reveal(double x) {
  if (xAxis->range().contains(x) || !std::isfinite(x)) return;
  move(*xAxis, x - xAxis->range().center());
}

}  // namespace zephon
