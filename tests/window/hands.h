#pragma once

#include <QApplication>
#include <QTest>

#include "window/graph_canvas.h"

// What a user's hands do on a window without a screen.
namespace zephon::testing_support {

// Lets what has changed be drawn.
inline void settle() {
  for (int pass = 0; pass < 5; ++pass) QApplication::processEvents();
}

// Where a point lies on a graph.
inline QPoint pixelOf(const GraphCanvas& canvas, double x, double y) {
  return {qRound(canvas.xAxis->coordToPixel(x)), qRound(canvas.axis(0).coordToPixel(y))};
}

inline void drag(GraphCanvas& canvas, QPoint from, QPoint to, Qt::KeyboardModifiers held = {}) {
  QTest::mousePress(&canvas, Qt::LeftButton, held, from);
  QMouseEvent move(QEvent::MouseMove, to, canvas.mapToGlobal(to), Qt::NoButton, Qt::LeftButton, held);
  QApplication::sendEvent(&canvas, &move);
  QTest::mouseRelease(&canvas, Qt::LeftButton, held, to);
  settle();
}

}  // namespace zephon::testing_support
