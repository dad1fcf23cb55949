#pragma once

#include <QString>

#include "window/pressable.h"

namespace zephon {

// A number with its unit, "118.42 V"; a text that does not start with a number is a bare unit.
struct Reading {
  explicit Reading(const QString& text);
  bool any = false;
  QString digits;  // a dash without a number
  QString unit;
};

// Draws it as large as the box allows, the unit half as large on the same base line. In a narrow box the unit
// gives way first.
void drawReading(QPainter& painter, const QRectF& box, const Reading& reading, const QFont& font,
                 const QColor& ink, const QColor& unitInk);

// A reading that can be pressed.
class ReadingButton : public Pressable {
 public:
  explicit ReadingButton(QWidget* parent);
  void show(const QString& text, const QColor& ink);
  const QString& text() const { return text_; }

  QSize sizeHint() const override { return minimumSizeHint(); }
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString text_;
  QColor ink_;
};

}  // namespace zephon
