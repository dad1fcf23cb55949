#pragma once

#include <QLayout>
#include <QList>

namespace zephon {

// Tiles of one size in as many columns as the width allows, evenly filled: eight tiles where five fit stand
// in two rows of four. Hidden tiles leave no hole. The rows share a height that is left over.
class TileLayout : public QLayout {
 public:
  TileLayout(int minimumWidth, int maximumColumns, int gap);
  ~TileLayout() override;

  void addItem(QLayoutItem* item) override;
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override { return items_.value(index); }
  QLayoutItem* takeAt(int index) override;

  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  QSize minimumSize() const override;
  Qt::Orientations expandingDirections() const override { return Qt::Horizontal | Qt::Vertical; }
  void setGeometry(const QRect& box) override;

 private:
  struct Grid {
    QList<QLayoutItem*> shown;
    int columns = 1;
    int rows = 0;
    int rowHeight = 0;  // of the tallest tile's minimum
  };
  Grid gridFor(int width) const;

  int minimumWidth_;
  int maximumColumns_;
  QList<QLayoutItem*> items_;
};

}  // namespace zephon
