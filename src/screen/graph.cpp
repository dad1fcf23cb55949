#include "screen/graph.h"

namespace zephon {

void Graph::setX(XKind kind, std::string title) {
  if (xKind_ == kind && xTitle_ == title) return;
  xKind_ = kind;
  xTitle_ = std::move(title);
  changed();
}

void Graph::setUp(std::vector<Axis> axes, std::vector<Plot> plots, std::vector<Cursor> cursors) {
  axes_ = std::move(axes);
  plots_ = std::move(plots);
  cursors_ = std::move(cursors);
  marks_.clear();
  ++markings_;
  viewPaused_ = false;
  ++picture_;
  changed();
}

void Graph::setData(std::size_t plot, std::shared_ptr<const PlotData> data) {
  Plot& one = plots_.at(plot);
  if (one.data == data) return;
  one.data = std::move(data);
  ++one.revision;
  viewPaused_ = false;
  changed();
}

void Graph::dropCursor(std::size_t cursor, double x, double y, std::optional<std::size_t> plot,
                       std::optional<std::size_t> index) {
  Cursor state = cursors_.at(cursor);
  state.x = x;
  state.y = y;
  state.plot = plot;
  setCursor(cursor, state);
  if (onCursor) onCursor(cursor, index);
}

}  // namespace zephon
