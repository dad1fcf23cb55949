#include "window/meter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "window/card.h"
#include "window/colours.h"
#include "window/fitted_text.h"
#include "window/reading.h"
#include "window/words.h"

namespace zephon {
namespace {

constexpr int kPadding = 14;
constexpr double kBarHeight = 12;
constexpr double kMark = 10;
constexpr double kGap = 10;
constexpr int kTwoLineHeight = 150;
constexpr double kSmallerTitle = 0.85;
constexpr int kMostSteps = 40;

// Where a value lies on the axis, 0 to 1; beyond its ends it stands at the end.
double share(const Slider::Axis& axis, double value) {
  const double span = axis.maximum - axis.minimum;
  if (!(span > 0) || std::isnan(value)) return 0;
  return std::clamp((value - axis.minimum) / span, 0.0, 1.0);
}

double placeOf(const Slider::Axis& axis, double value, const QRectF& bar) {
  return bar.left() + share(axis, value) * bar.width();
}

void triangle(QPainter& painter, const QPointF& tip, double side, double direction) {
  painter.drawPolygon(QPolygonF(
      {tip, tip + QPointF(-side / 2, direction * side), tip + QPointF(side / 2, direction * side)}));
}

QFont scaled(QFont font, double points) {
  font.setPointSizeF(points);
  return font;
}

// The scale's major steps; an axis that can't be divided has its two ends.
int stepsOf(const Slider::Axis& axis) {
  const double steps = std::round((axis.maximum - axis.minimum) / axis.majorStep);
  return steps >= 1 && steps <= kMostSteps ? static_cast<int>(steps) : 1;
}

double stepAt(const Slider::Axis& axis, int step, int steps) {
  return axis.minimum + (axis.maximum - axis.minimum) * step / steps;
}

QString stepText(const Slider::Axis& axis, int step, int steps) {
  return QString::number(stepAt(axis, step, steps), 'g', 6);
}

// Every how many steps a number stands, so that none touches the next and both ends have theirs.
int strideOf(const Slider::Axis& axis, int steps, const QFontMetricsF& metrics, double width) {
  double widest = 0;
  for (int step = 0; step <= steps; ++step)
    widest = std::max(widest, metrics.horizontalAdvance(stepText(axis, step, steps)));
  for (int stride = 1; stride < steps; ++stride) {
    // The outermost numbers stand inside the bar, half their width nearer to their neighbours.
    if (steps % stride == 0 && width * stride / steps >= 1.5 * widest + kGap / 2) return stride;
  }
  return steps;
}

}  // namespace

Meter::Meter(QWidget* parent) : Pressable(parent) {
  setCheckable(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  whileSpoken(*this, [this] { tell(); });
}

QSize Meter::minimumSizeHint() const {
  const int line = fontMetrics().height();
  return {200, 2 * kPadding + 4 * line + 28};
}

void Meter::setFace(const Face& face) {
  if (face == face_) return;
  face_ = face;
  showOn(face.on);
  tell();
}

void Meter::tell() {
  setAccessibleName(face_.title);
  const QString word = zoneWord(zone());
  setAccessibleDescription(word.isEmpty() ? face_.reading : face_.reading + QStringLiteral(", ") + word);
  update();
}

Zone Meter::zone() const {
  if (!face_.on) return Zone::Off;
  if (!shows()) return Zone::Empty;
  return face_.stale ? Zone::NotLive : face_.zone;
}

bool Meter::shows() const {
  return face_.on && Reading(face_.reading).any;
}

QColor Meter::ink() const {
  const bool live = shows() && !face_.stale;
  return live ? palette().color(QPalette::Active, QPalette::Text) : tone(Tone::Muted, palette());
}

// The zone's word stands at the right of the title. Where there is no room for both it goes below the title; in a
// low meter a somewhat smaller title makes room for it or, if that does not do, the mark stands alone.
void Meter::paintHead(QPainter& painter, const QRectF& box) {
  const QFontMetricsF metrics(font());
  QString word = zoneWord(zone());
  const auto zoneWidth = [&] {
    return zone() == Zone::Empty ? 0 : kMark + (word.isEmpty() ? 0 : metrics.horizontalAdvance(word) + 6);
  };
  const double title = metrics.horizontalAdvance(face_.title);
  const auto fits = [&](double share) { return share * title + kGap + zoneWidth() <= box.width(); };
  const bool below = !fits(1) && height() >= kTwoLineHeight;
  if (!below && !fits(kSmallerTitle)) word.clear();

  const QRectF line = below ? box.translated(0, box.height() + 3) : box;
  const QRectF mark(line.right() - zoneWidth(), line.center().y() - kMark / 2, kMark, kMark);
  drawZoneMark(painter, mark, zone(), palette());
  painter.setFont(font());
  painter.setPen(zoneColour(zone(), palette()));
  painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, word);
  painter.setPen(tone(Tone::Muted, palette()));
  const QRectF place = box.adjusted(0, 0, below ? 0 : -zoneWidth() - kGap, 0);
  const FittedText drawn =
      drawFitted(painter, place, Qt::AlignLeft | Qt::AlignVCenter, face_.title, font(), 1);
  cut_ = drawn.cut || (word.isEmpty() && !zoneWord(zone()).isEmpty());
}

// From the scale's zero, where it has one inside, else from its start, to the value. A value beyond the scale
// points out of its end.
void Meter::paintBar(QPainter& painter, const QRectF& bar) const {
  QPainterPath shape;
  shape.addRoundedRect(bar, 3, 3);
  painter.setPen(Qt::NoPen);
  painter.fillPath(shape, tone(Tone::Track, palette()));
  if (!shows()) return;

  const QColor colour = zoneColour(zone(), palette());
  const bool crossing = face_.axis.minimum < 0 && face_.axis.maximum > 0;
  const double from = crossing ? placeOf(face_.axis, 0, bar) : bar.left();
  const double to = placeOf(face_.axis, face_.value, bar);
  painter.save();
  painter.setClipPath(shape);
  painter.fillRect(QRectF(std::min(from, to), bar.top(), std::abs(to - from), bar.height()),
                   mixed(tone(Tone::Card, palette()), colour, 0.55));
  painter.restore();
  painter.setBrush(colour);
  const double left = std::clamp(to - 2, bar.left(), bar.right() - 4);
  painter.drawRoundedRect(QRectF(left, bar.top() - 3, 4, bar.height() + 6), 1.5, 1.5);
}

void Meter::paintScale(QPainter& painter, const QRectF& bar) const {
  painter.setPen(QPen(tone(Tone::Muted, palette()), 1));
  painter.setBrush(tone(Tone::Muted, palette()));
  const Slider::Axis& axis = face_.axis;
  for (const double mark : face_.marks) {
    if (mark < axis.minimum || mark > axis.maximum) continue;
    triangle(painter, QPointF(placeOf(axis, mark, bar), bar.top() - 4), 6, -1);
  }
  const int steps = stepsOf(axis);
  const QFont small = scaled(font(), font().pointSizeF() * 0.85);
  const QFontMetricsF metrics(small);
  painter.setFont(small);
  const int stride = strideOf(axis, steps, metrics, bar.width());
  for (int step = 0; step <= steps; ++step) {
    const double place = placeOf(axis, stepAt(axis, step, steps), bar);
    painter.drawLine(QPointF(place, bar.bottom() + 4), QPointF(place, bar.bottom() + 7));
    if (step % stride != 0) continue;
    const QString number = stepText(axis, step, steps);
    const double width = metrics.horizontalAdvance(number);
    const double left = std::clamp(place - width / 2, bar.left(), bar.right() - width);
    painter.drawText(QPointF(left, bar.bottom() + 7 + metrics.ascent()), number);
  }
}

void Meter::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paintCard(painter, rect(), palette(), showsRing());
  const QRectF box = QRectF(rect()).adjusted(kPadding, 10, -kPadding, -8);
  const double line = QFontMetricsF(font()).height();
  const QRectF head(box.left(), box.top(), box.width(), line);
  const QRectF bar(box.left(), box.bottom() - line - 6 - kBarHeight, box.width(), kBarHeight);
  paintHead(painter, head);
  drawReading(painter, QRectF(box.left(), head.bottom(), box.width(), bar.top() - 8 - head.bottom()),
              Reading(face_.reading), font(), ink(), tone(Tone::Muted, palette()));
  paintBar(painter, bar);
  paintScale(painter, bar);
}

}  // namespace zephon
