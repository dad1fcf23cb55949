#pragma once

#include <QString>
#include <vector>

#include "screen/slider.h"
#include "window/pressable.h"
#include "window/zone.h"

namespace zephon {

// One quantity, to be read from across a room: the number with its unit, a bar that shows where it lies on
// its scale, and a word with a mark for its zone. A press asks to turn the meter off or on.
class Meter : public Pressable {
 public:
  struct Face {
    QString title;
    QString reading;   // "120.34 V"; a bare unit is no reading
    double value = 0;  // of the bar
    Slider::Axis axis;
    Zone zone = Zone::Good;  // as the reading's colour says
    bool on = true;
    bool stale = false;         // of before the link was lost
    std::vector<double> marks;  // limits on the scale
    bool operator==(const Face&) const = default;
  };

  explicit Meter(QWidget* parent);
  void setFace(const Face& face);
  const Face& face() const { return face_; }
  bool headIsCut() const { return cut_; }  // as last drawn
  Zone zone() const;                       // with off, not live and no reading told apart

  QSize sizeHint() const override { return minimumSizeHint(); }
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool shows() const;  // a reading
  void tell();         // the face in words, to the screen and to a screen reader
  QColor ink() const;
  void paintHead(QPainter& painter, const QRectF& box);
  void paintBar(QPainter& painter, const QRectF& bar) const;
  void paintScale(QPainter& painter, const QRectF& bar) const;

  Face face_;
  bool cut_ = false;
};

}  // namespace zephon
