#include "window/graph_marks.h"

#include <cmath>
#include <set>

#include "window/colours.h"

namespace zephon {

void GraphMarks::draw(QCPPainter* painter) {
  const QRect box = clipRect();
  std::set<int> columns;  // of pixels; marks that fall together are drawn once
  for (const double mark : marks_) {
    const double pixel = mParentPlot->xAxis->coordToPixel(mark);
    if (pixel >= box.left() - 1 && pixel <= box.right() + 1)
      columns.insert(static_cast<int>(std::lround(pixel)));
  }
  const QColor ink = tone(Tone::Focus, mParentPlot->palette());
  QColor band = ink;
  band.setAlphaF(0.3F);
  for (const int x : columns) {
    painter->fillRect(QRect(x - 1, box.top(), 3, box.height()), band);
    painter->setPen(Qt::NoPen);
    painter->setBrush(ink);
    painter->drawPolygon(QPolygon({{x - 5, box.top()}, {x + 5, box.top()}, {x, box.top() + 8}}));
  }
}

}  // namespace zephon
