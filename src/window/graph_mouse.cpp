#include <QMouseEvent>
#include <cmath>
#include <utility>

#include "window/graph_canvas.h"

// What the mouse does on the graph.
namespace zephon {
namespace {

constexpr double kReach = 6;         // pixels from which a cursor can be grasped
constexpr double kWheelZoom = 0.85;  // of the width, for a notch of the wheel
constexpr double kWheelPan = 0.1;
constexpr double kNotch = 120;

}  // namespace

std::optional<std::size_t> GraphCanvas::cursorAt(QPointF pixel) const {
  if (!axisRect()->rect().contains(pixel.toPoint())) return {};
  std::optional<std::size_t> nearest;
  double least = kReach;
  for (std::size_t i = 0; i < cursors_.size(); ++i) {
    if (!cursors_[i]->shown() || cursors_[i]->distance(pixel) >= least) continue;
    least = cursors_[i]->distance(pixel);
    nearest = i;
  }
  return nearest;
}

QCPAxis* GraphCanvas::axisAt(QPointF pixel) const {
  for (QCPAxis* axis : axisRect()->axes()) {
    if (axis->visible() && axis->getPartAt(pixel) != QCPAxis::spNone) return axis;
  }
  return nullptr;
}

// The plot on which the cursor stands; where that is hidden, the visible one nearest to the pointer.
std::optional<std::size_t> GraphCanvas::plotNear(std::size_t cursor, QPointF pixel) const {
  const auto own = element_.cursors()[cursor].plot;
  std::optional<std::size_t> nearest;
  double least = 0;
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const auto point =
        lines_[i]->visible() ? lines_[i]->nearest(xAxis->pixelToCoord(pixel.x())) : std::nullopt;
    if (!point) continue;
    if (own == i) return i;
    const double away =
        std::abs(lines_[i]->valueAxis()->coordToPixel(lines_[i]->data()->y(*point)) - pixel.y());
    if (nearest && !(away < least)) continue;
    nearest = i;
    least = away;
  }
  return nearest;
}

// It snaps from point to point and is read off on the way.
void GraphCanvas::dragCursor(std::size_t cursor, QPointF pixel) {
  if (cursors_[cursor]->horizontal()) return dropAt(cursor, cursors_[cursor]->levelAt(pixel));
  const auto plot = plotNear(cursor, pixel);
  if (plot) dropOn(cursor, *plot, *lines_[*plot]->nearest(xAxis->pixelToCoord(pixel.x())));
}

// Time; values too where they have been moved before, or on demand.
void GraphCanvas::dragView(const Drag& drag, QPointF to, bool values) {
  const auto shift = [&](QCPAxis& axis) {
    const bool wide = axis.orientation() == Qt::Horizontal;
    const double from = axis.pixelToCoord(wide ? drag.last.x() : drag.last.y());
    move(axis, from - axis.pixelToCoord(wide ? to.x() : to.y()));
  };
  if (drag.axis) return shift(*drag.axis);
  if (to.x() != drag.last.x()) shift(*xAxis);
  for (YAxis& one : axes_) {
    if ((values || one.own) && to.y() != drag.last.y()) shift(*one.axis);
  }
}

void GraphCanvas::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return event->ignore();
  catchUp();
  const QPointF at = event->position();
  drag_ = Drag{cursorAt(at), axisAt(at), at};
  if (drag_->cursor) active_ = *drag_->cursor;
}

void GraphCanvas::mouseMoveEvent(QMouseEvent* event) {
  catchUp();
  const QPointF at = event->position();
  if (!drag_) {
    const auto near = cursorAt(at);
    near ? setCursor(cursors_[*near]->horizontal() ? Qt::SplitVCursor : Qt::SplitHCursor) : unsetCursor();
    return;
  }
  if (drag_->cursor) {
    dragCursor(*drag_->cursor, at);
  } else {
    dragView(*drag_, at, event->modifiers().testFlag(Qt::ControlModifier));
  }
  drag_->last = at;
}

void GraphCanvas::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) drag_.reset();
}

void GraphCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  YAxis* one = yAxisOf(axisAt(event->position()));
  if (!one) return show(Span::All);
  one->own = false;
  fitRanges();
  replot(QCustomPlot::rpQueuedReplot);
}

void GraphCanvas::wheelEvent(QWheelEvent* event) {
  event->accept();
  catchUp();
  const QPointF turn = QPointF(event->angleDelta()) / kNotch;
  const bool along = event->modifiers().testFlag(Qt::ShiftModifier);
  const double aside = along ? turn.y() : turn.x();
  if (aside != 0) pan(-aside * kWheelPan, 0);
  if (along || turn.y() == 0) return;
  const double factor = std::pow(kWheelZoom, turn.y());
  const auto zoom = [&](QCPAxis& axis) {
    const QPointF at = event->position();
    scale(axis, factor, axis.pixelToCoord(axis.orientation() == Qt::Horizontal ? at.x() : at.y()));
  };
  QCPAxis* axis = axisAt(event->position());
  if (axis) return zoom(*axis);
  if (!event->modifiers().testFlag(Qt::ControlModifier)) return zoom(*xAxis);
  for (YAxis& one : axes_) zoom(*one.axis);
}

}  // namespace zephon
