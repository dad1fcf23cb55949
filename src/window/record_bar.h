#pragma once

#include <QColor>
#include <vector>

#include "screen/colour.h"
#include "window/pressable.h"

namespace zephon {

// A filling of its own for each class of disturbance: its colour, and a pattern that tells it apart without.
void paintFilling(QPainter& painter, const QRectF& box, int number, const QColor& colour);

// Shares of a whole as one stacked bar, 0 to 100. A press asks to turn the record off or on.
class RecordBar : public Pressable {
 public:
  struct Segment {
    int number = 0;  // of its filling
    double upTo = 0;
    Colour colour = kBlack;
    bool operator==(const Segment&) const = default;
  };

  explicit RecordBar(QWidget* parent);
  void setSegments(std::vector<Segment> segments, bool on);

  QSize sizeHint() const override { return {400, 26}; }
  QSize minimumSizeHint() const override { return {120, 26}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<Segment> segments_;
};

// The filling of one class beside its legend.
class Swatch : public QWidget {
 public:
  Swatch(int number, QWidget* parent);
  void setColour(Colour colour);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int number_;
  Colour colour_ = kBlack;
};

}  // namespace zephon
