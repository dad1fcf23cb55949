#include "window/record_bar.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <utility>

#include "window/accessible.h"
#include "window/colours.h"

namespace zephon {
namespace {

constexpr std::array kPatterns{Qt::NoBrush,      Qt::BDiagPattern, Qt::Dense6Pattern,   Qt::VerPattern,
                               Qt::FDiagPattern, Qt::HorPattern,   Qt::DiagCrossPattern};

}  // namespace

void paintFilling(QPainter& painter, const QRectF& box, int number, const QColor& colour) {
  painter.fillRect(box, colour);
  const auto pattern = kPatterns.at(static_cast<std::size_t>(std::max(0, number - 1)) % kPatterns.size());
  if (pattern == Qt::NoBrush) return;
  const bool bright = colour.lightness() > 128;
  painter.fillRect(box, QBrush(bright ? QColor(0, 0, 0, 150) : QColor(255, 255, 255, 170), pattern));
}

RecordBar::RecordBar(QWidget* parent) : Pressable(parent) {
  setCheckable(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void RecordBar::setSegments(std::vector<Segment> segments, bool on) {
  if (segments == segments_ && on == isChecked()) return;
  segments_ = std::move(segments);
  showOn(on);
  update();
}

void RecordBar::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF box = QRectF(rect()).adjusted(2, 2, -2, -2);
  QPainterPath shape;
  shape.addRoundedRect(box, 4, 4);
  painter.fillPath(shape, tone(Tone::Track, palette()));
  if (isChecked()) {
    painter.save();
    painter.setClipPath(shape);
    double reached = 0;
    for (const Segment& segment : segments_) {
      const double upTo = std::min(segment.upTo, 100.0);
      if (!(upTo > reached)) continue;
      const QRectF part(box.left() + reached / 100 * box.width(), box.top(),
                        (upTo - reached) / 100 * box.width(), box.height());
      paintFilling(painter, part.adjusted(reached > 0 ? 1 : 0, 0, 0, 0), segment.number,
                   shapeColour(segment.colour, palette()));
      reached = upTo;
    }
    painter.restore();
  }
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(tone(showsRing() ? Tone::Focus : Tone::Line, palette()), showsRing() ? 2 : 1));
  painter.drawPath(shape);
}

Swatch::Swatch(int number, QWidget* parent) : QWidget(parent), number_(number) {
  giveRole(*this, QAccessible::Graphic);
  setFixedSize(18, 14);
}

void Swatch::setColour(Colour colour) {
  if (colour == colour_) return;
  colour_ = colour;
  update();
}

void Swatch::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  paintFilling(painter, rect(), number_, shapeColour(colour_, palette()));
  painter.setPen(tone(Tone::Line, palette()));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace zephon
