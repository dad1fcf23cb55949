#include "window/reading.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

#include "window/colours.h"

namespace zephon {
namespace {

constexpr double kUnitGap = 0.22;  // of the number's size
constexpr double kLeastUnit = 0.32;
constexpr double kSmallest = 12;
constexpr double kLargest = 96;

QFont sized(QFont font, double points) {
  font.setPointSizeF(points);
  return font;
}

struct Sizes {
  double digits;
  double unit;
};

Sizes sizesFor(const Reading& reading, const QFont& font, const QSizeF& box) {
  Sizes sizes{std::clamp(std::min(box.height() * 0.6, box.width() * 0.175), kSmallest, kLargest), 0};
  sizes.unit = sizes.digits / 2;
  const auto width = [&font](const QString& text, double points) {
    return QFontMetricsF(sized(font, points)).horizontalAdvance(text);
  };
  const auto fits = [&] {
    return width(reading.digits, sizes.digits) + sizes.digits * kUnitGap + width(reading.unit, sizes.unit) <=
           box.width();
  };
  while (!fits() && sizes.unit > sizes.digits * kLeastUnit) sizes.unit -= 0.5;
  while (!fits() && sizes.digits > kSmallest) {
    sizes.digits -= 0.5;
    sizes.unit = std::min(sizes.unit, sizes.digits / 2);
  }
  return sizes;
}

}  // namespace

Reading::Reading(const QString& text) : digits(QStringLiteral("\u2013")), unit(text) {
  const qsizetype sign = text.startsWith(QLatin1Char('-')) ? 1 : 0;
  any = text.size() > sign && text.at(sign).isDigit();
  if (!any) return;
  const qsizetype blank = text.indexOf(QLatin1Char(' '));
  digits = text.left(blank);
  unit = blank < 0 ? QString() : text.mid(blank + 1);
}

void drawReading(QPainter& painter, const QRectF& box, const Reading& reading, const QFont& font,
                 const QColor& ink, const QColor& unitInk) {
  const Sizes sizes = sizesFor(reading, font, box.size());
  const QFont large = sized(font, sizes.digits);
  const QFontMetricsF metrics(large);
  const double base = box.center().y() + metrics.capHeight() / 2;
  const double left = box.left() - sizes.digits * 0.06;  // the digits' own margin
  painter.setPen(ink);
  painter.setFont(large);
  painter.drawText(QPointF(left, base), reading.digits);
  painter.setPen(unitInk);
  painter.setFont(sized(font, sizes.unit));
  painter.drawText(QPointF(left + metrics.horizontalAdvance(reading.digits) + sizes.digits * kUnitGap, base),
                   reading.unit);
}

ReadingButton::ReadingButton(QWidget* parent) : Pressable(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setCursor(Qt::PointingHandCursor);
}

QSize ReadingButton::minimumSizeHint() const {
  return {120, 2 * fontMetrics().height()};
}

void ReadingButton::show(const QString& text, const QColor& ink) {
  text_ = text;
  ink_ = ink;
  setAccessibleDescription(text);
  update();
}

void ReadingButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  drawReading(painter, rect(), Reading(text_), font(), ink_, tone(Tone::Muted, palette()));
  if (!showsRing()) return;
  painter.setPen(QPen(tone(Tone::Focus, palette()), 2));
  painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
}

}  // namespace zephon
