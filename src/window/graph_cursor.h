#pragma once

#include <qcustomplot.h>

#include "screen/graph.h"

namespace zephon {

// A cursor drawn across the whole graph: a vertical line with a ring at its point, or a level on its plot's
// axis; and beside it what it reads off.
class CursorLine : public QCPLayerable {
 public:
  CursorLine(QCustomPlot& plot, int row);

  // Both axes have to stand as long as it is drawn.
  void show(const Graph::Cursor& cursor, QCPAxis& valueAxis, const QColor& ink, bool active);
  bool shown() const { return visible(); }
  bool horizontal() const { return cursor_.horizontal; }
  // Distance of a place from the line, in pixels.
  double distance(QPointF pixel) const;
  // Where a level would be that stands there.
  double levelAt(QPointF pixel) const { return valueAxis_->pixelToCoord(pixel.y()); }

 protected:
  QRect clipRect() const override;
  void applyDefaultAntialiasingHint(QCPPainter* painter) const override { painter->setAntialiasing(false); }
  void draw(QCPPainter* painter) override;

 private:
  void drawReading(QCPPainter& painter, const QString& reading, QPointF at) const;

  Graph::Cursor cursor_;
  QPointer<QCPAxis> valueAxis_;
  QColor ink_;
  bool active_ = false;
  int row_;  // of its reading, counted from the top
};

}  // namespace zephon
