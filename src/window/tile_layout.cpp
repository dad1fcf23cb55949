#include "window/tile_layout.h"

#include <algorithm>

namespace zephon {

TileLayout::TileLayout(int minimumWidth, int maximumColumns, int gap)
    : minimumWidth_(minimumWidth), maximumColumns_(maximumColumns) {
  setSpacing(gap);
  setContentsMargins(0, 0, 0, 0);
}

TileLayout::~TileLayout() {
  qDeleteAll(items_);
}

void TileLayout::addItem(QLayoutItem* item) {
  items_.append(item);
}

QLayoutItem* TileLayout::takeAt(int index) {
  return index >= 0 && index < count() ? items_.takeAt(index) : nullptr;
}

TileLayout::Grid TileLayout::gridFor(int width) const {
  Grid grid;
  std::copy_if(items_.begin(), items_.end(), std::back_inserter(grid.shown),
               [](const QLayoutItem* item) { return !item->isEmpty(); });
  const int number = static_cast<int>(grid.shown.size());
  if (number == 0) return grid;
  const int fitting = (width + spacing()) / (minimumWidth_ + spacing());
  const int most = std::clamp(fitting, 1, std::min(maximumColumns_, number));
  grid.rows = (number + most - 1) / most;
  grid.columns = (number + grid.rows - 1) / grid.rows;
  const int tile = (width + spacing()) / grid.columns - spacing();
  for (const QLayoutItem* item : grid.shown) {
    const int needed = item->hasHeightForWidth() ? item->heightForWidth(tile) : 0;
    grid.rowHeight = std::max({grid.rowHeight, item->minimumSize().height(), needed});
  }
  return grid;
}

int TileLayout::heightForWidth(int width) const {
  const QMargins edge = contentsMargins();
  const Grid grid = gridFor(width - edge.left() - edge.right());
  return grid.rows * grid.rowHeight + std::max(0, grid.rows - 1) * spacing() + edge.top() + edge.bottom();
}

QSize TileLayout::sizeHint() const {
  return minimumSize();
}

// The height goes by the width; asked without one, a tile's own is the least.
QSize TileLayout::minimumSize() const {
  const Grid grid = gridFor(minimumWidth_);
  const QMargins edge = contentsMargins();
  return {grid.rows == 0 ? 0 : minimumWidth_ + edge.left() + edge.right(),
          grid.rowHeight + edge.top() + edge.bottom()};
}

void TileLayout::setGeometry(const QRect& box) {
  QLayout::setGeometry(box);
  const QRect inner = contentsRect();
  const Grid grid = gridFor(inner.width());
  if (grid.rows == 0) return;
  const int gap = spacing();
  const auto edgeOf = [gap](int start, int length, int parts, int part) {
    return start + part * (length + gap) / parts;
  };
  const int height = std::max(inner.height(), grid.rows * grid.rowHeight + (grid.rows - 1) * gap);
  for (int index = 0; index < static_cast<int>(grid.shown.size()); ++index) {
    const int column = index % grid.columns;
    const int row = index / grid.columns;
    const QPoint from(edgeOf(inner.left(), inner.width(), grid.columns, column),
                      edgeOf(inner.top(), height, grid.rows, row));
    const QPoint to(edgeOf(inner.left(), inner.width(), grid.columns, column + 1) - gap,
                    edgeOf(inner.top(), height, grid.rows, row + 1) - gap);
    grid.shown.at(index)->setGeometry(QRect(from, QSize(to.x() - from.x(), to.y() - from.y())));
  }
}

}  // namespace zephon
