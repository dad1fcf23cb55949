#include <algorithm>
#include <cmath>

#include "window/graph_canvas.h"

// The graph's cursors: where they are let go. What they read off there the element tells.
namespace zephon {
namespace {

constexpr double kLevelStep = 0.01;  // of the axis

}  // namespace

// The cursor that was moved last; where it is hidden, the first that is not.
std::optional<std::size_t> GraphCanvas::activeCursor() const {
  const auto& cursors = element_.cursors();
  const auto shown = [&](std::size_t i) {
    return i < std::min(cursors.size(), cursors_.size()) && cursors[i].visible;
  };
  if (shown(active_)) return active_;
  for (std::size_t i = 0; i < cursors.size(); ++i) {
    if (shown(i)) return i;
  }
  return {};
}

void GraphCanvas::dropOn(std::size_t cursor, std::size_t plot, std::size_t index) {
  const PlotData& points = *lines_[plot]->data();
  const Graph::Cursor& now = element_.cursors()[cursor];
  if (now.plot == plot && now.x == points.x(index) && now.y == points.y(index)) return;
  element_.dropCursor(cursor, points.x(index), points.y(index), plot, index);
  redrawCursors();
}

void GraphCanvas::dropAt(std::size_t cursor, double level) {
  const Graph::Cursor& now = element_.cursors()[cursor];
  if (now.y == level) return;
  element_.dropCursor(cursor, now.x, level, now.plot, {});
  redrawCursors();
}

void GraphCanvas::redrawCursors() {
  followCursors();
  replot(QCustomPlot::rpQueuedReplot);
}

void GraphCanvas::nextCursor() {
  if (cursors_.empty()) return;
  const auto now = activeCursor();
  for (std::size_t i = 1; i <= cursors_.size(); ++i) {
    active_ = (now.value_or(0) + i) % cursors_.size();
    if (element_.cursors()[active_].visible) break;
  }
  redrawCursors();
}

void GraphCanvas::stepCursor(int points) {
  const auto cursor = activeCursor();
  if (!cursor || cursors_[*cursor]->horizontal()) return;
  const double x = element_.cursors()[*cursor].x;
  const auto plot = plotNear(*cursor, {xAxis->coordToPixel(x), 0});
  if (!plot) return;
  const PlotLine& line = *lines_[*plot];
  std::optional<std::size_t> index = line.nearest(x);
  for (int step = 0; index && step < std::abs(points); ++step) {
    const auto next = nextPoint(*line.data(), line.size(), *index, points);
    if (!next) break;
    index = next;
  }
  dropOn(*cursor, *plot, *index);
  reveal(element_.cursors()[*cursor].x);
}

void GraphCanvas::slideCursor(double share) {
  const auto cursor = activeCursor();
  if (!cursor || cursors_[*cursor]->horizontal()) return;
  const double x = element_.cursors()[*cursor].x + share * xAxis->range().size();
  const auto plot = plotNear(*cursor, {xAxis->coordToPixel(x), 0});
  if (!plot) return;
  dropOn(*cursor, *plot, *lines_[*plot]->nearest(x));
  reveal(element_.cursors()[*cursor].x);
}

void GraphCanvas::raiseCursor(int steps) {
  const auto cursor = activeCursor();
  if (!cursor) return;
  const Graph::Cursor now = element_.cursors()[*cursor];
  if (now.horizontal) {
    return dropAt(*cursor, now.y + steps * kLevelStep * axisOf(now.plot).range().size());
  }
  const std::size_t count = lines_.size();
  for (std::size_t away = 1; away <= count; ++away) {
    const std::size_t from = now.plot.value_or(0);
    const std::size_t plot = (steps > 0 ? from + count - away % count : from + away) % count;
    const auto point = lines_[plot]->visible() ? lines_[plot]->nearest(now.x) : std::nullopt;
    if (point) return dropOn(*cursor, plot, *point);
  }
}

}  // namespace zephon
