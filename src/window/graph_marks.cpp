#include "window/graph_marks.h"

#include <cmath>
#include <set>

#include "window/colours.h"

namespace zephon {

void GraphMarks::draw(QCPPainter* painter) {
  const QRect box = clipRect();
  QRegion bands;  // where marks lie close together they are one, no darker than a single one
  const QPolygon pointer({{-5, box.top()}, {5, box.top()}, {0, box.top() + 8}});
  std::set<int> columns;  // of pixels; marks that fall together are drawn once
  for (const double mark : marks_) {
    const double pixel = mParentPlot->xAxis->coordToPixel(mark);
    if (pixel >= box.left() - 1 && pixel <= box.right() + 1)
      columns.insert(static_cast<int>(std::lround(pixel)));
  }
  const QColor ink = tone(Tone::Focus, mParentPlot->palette());
  QColor band = ink;
  band.setAlphaF(0.3F);
  painter->setPen(Qt::NoPen);
  painter->setBrush(ink);
  for (const int x : columns) {
    bands += QRect(x - 1, box.top(), 3, box.height());
    painter->drawPolygon(pointer.translated(x, 0));
  }
  for (const QRect& one : bands) painter->fillRect(one, band);
}

}  // namespace zephon
