#include "window/graph_cursor.h"

#include <algorithm>
#include <cmath>

#include "window/bindings.h"

namespace zephon {

CursorLine::CursorLine(QCustomPlot& plot, int row)
    : QCPLayerable(&plot, QStringLiteral("overlay")), row_(row) {
  setVisible(false);
}

void CursorLine::show(const Graph::Cursor& cursor, QCPAxis& valueAxis, const QColor& ink, bool active) {
  cursor_ = cursor;
  valueAxis_ = &valueAxis;
  ink_ = ink;
  active_ = active;
  setVisible(cursor.visible && std::isfinite(cursor.x) && std::isfinite(cursor.y));
}

double CursorLine::distance(QPointF pixel) const {
  return horizontal() ? std::abs(valueAxis_->coordToPixel(cursor_.y) - pixel.y())
                      : std::abs(mParentPlot->xAxis->coordToPixel(cursor_.x) - pixel.x());
}

QRect CursorLine::clipRect() const {
  return mParentPlot->axisRect()->rect();
}

void CursorLine::draw(QCPPainter* painter) {
  if (!valueAxis_) return;
  const QRectF box = clipRect();
  const QPointF at(mParentPlot->xAxis->coordToPixel(cursor_.x), valueAxis_->coordToPixel(cursor_.y));
  const Qt::PenStyle style = row_ % 2 ? Qt::DashLine : Qt::SolidLine;
  painter->setPen(QPen(ink_, active_ ? 2 : 1, style));
  if (horizontal()) {
    painter->drawLine(QLineF(box.left(), at.y(), box.right(), at.y()));
  } else if (box.left() <= at.x() && at.x() <= box.right()) {
    painter->drawLine(QLineF(at.x(), box.top(), at.x(), box.bottom()));
    painter->setAntialiasing(true);
    painter->setPen(QPen(ink_, 1.5));
    if (cursor_.plot) painter->drawEllipse(at, 5, 5);
  } else {
    return;
  }
  if (!cursor_.reading.empty()) drawReading(*painter, toQt(cursor_.reading), at);
}

// Beside the line, on whichever side there is room.
void CursorLine::drawReading(QCPPainter& painter, const QString& reading, QPointF at) const {
  constexpr double kGap = 6;
  const QRectF box = clipRect();
  painter.setFont(mParentPlot->font());
  QRectF text = painter.boundingRect(QRectF(), Qt::AlignLeft, reading).adjusted(-4, -2, 4, 2);
  const bool right = horizontal() || at.x() + kGap + text.width() <= box.right();
  text.moveLeft(horizontal() ? box.left() + kGap : right ? at.x() + kGap : at.x() - kGap - text.width());
  text.moveLeft(std::max(text.left(), box.left()));
  text.moveTop(horizontal() ? at.y() + 2 : box.top() + 4 + row_ * (text.height() + 2));
  QColor ground = mParentPlot->palette().color(QPalette::Active, QPalette::Base);
  ground.setAlphaF(0.9F);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ground);
  painter.drawRect(text);
  painter.setPen(ink_);
  painter.setBrush(Qt::NoBrush);
  painter.drawText(text, Qt::AlignCenter, reading);
}

}  // namespace zephon
