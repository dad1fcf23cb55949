#include "window/state_button.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "window/colours.h"

namespace zephon {
namespace {

constexpr int kPadding = 10;
constexpr int kLamp = 10;
constexpr int kGap = 8;
constexpr int kRadius = 4;
constexpr QSize kSwitch(52, 28);
constexpr int kRoomy = 220;  // a large button of this width can afford wide edges
constexpr int kRailWidth = 100;
constexpr int kTallRail = 50;  // from here up a page's word stands under its drawing

}  // namespace

StateButton::StateButton(QWidget* parent, Look look) : Pressable(parent), look_(look) {
  setSizePolicy(QSizePolicy::Preferred,
                shows(Look::Plain) || shows(Look::Switch) ? QSizePolicy::Fixed : QSizePolicy::Preferred);
}

void StateButton::setCaption(const QString& caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  updateGeometry();
  update();
}

void StateButton::setGlyph(Glyph glyph) {
  glyph_ = glyph;
  updateGeometry();
  update();
}

void StateButton::setLamp(Zone lit) {
  lit_ = lit;
  update();
}

QFont StateButton::captionFont() const {
  QFont used = font();
  const bool own = testAttribute(Qt::WA_SetFont);  // its element names a size
  if (shows(Look::Large) || shows(Look::Indicator)) used.setPointSizeF(used.pointSizeF() * 1.7);
  if (shows(Look::Plain) && !own) used.setPointSizeF(used.pointSizeF() * 1.15);
  if (isChecked()) used.setBold(true);
  return used;
}

QSize StateButton::sizeHint() const {
  QFont bold = captionFont();
  bold.setBold(true);  // so that a press does not move its neighbours
  const QFontMetrics metrics(bold);
  const int text = metrics.horizontalAdvance(caption_);
  if (shows(Look::Rail)) return {std::clamp(text + 2 * kPadding, kRailWidth, 124), 64};
  if (shows(Look::Switch)) return kSwitch;
  if (!shows(Look::Plain)) return {text + 4 * kPadding + kLamp, 96};
  int width = text + 2 * kPadding;
  if (isCheckable()) width += kLamp + kGap;
  if (glyph_ != Glyph::None) width += metrics.height() + (caption_.isEmpty() ? 0 : kGap);
  return {width, std::max(32, metrics.height() + 2 * kGap)};
}

QSize StateButton::minimumSizeHint() const {
  const QSize wanted = sizeHint();
  if (shows(Look::Rail)) return {kRailWidth, 26};
  if (shows(Look::Switch)) return kSwitch;
  if (!shows(Look::Plain)) return {150, 72};
  return {std::min(wanted.width(), 72), wanted.height()};
}

QColor StateButton::ink() const {
  const QColor text = palette().color(QPalette::Active, QPalette::ButtonText);
  const bool faded = !isEnabled() && !shows(Look::Indicator) && !shows(Look::Large);
  return faded ? mixed(text, palette().color(QPalette::Active, QPalette::Window), 0.5) : text;
}

void StateButton::paintGround(QPainter& painter) const {
  const QRectF box = QRectF(rect()).adjusted(1, 1, -1, -1);
  const bool signal = isChecked() && shows(Look::Indicator);
  const bool lit = isChecked() && isEnabled() && !shows(Look::Switch);
  QColor ground = lit ? tone(Tone::Selected, palette()) : palette().color(QPalette::Active, QPalette::Button);
  if (!isEnabled())
    ground = signal ? mixed(tone(Tone::Card, palette()), zoneColour(lit_, palette()), 0.15) : Qt::transparent;
  if (isDown()) ground = mixed(ground, ink(), 0.18);
  if (underMouse() && isEnabled() && !isDown()) ground = mixed(ground, ink(), 0.06);
  const bool bordered = !shows(Look::Rail);
  QColor border = tone(lit ? Tone::Focus : Tone::Line, palette());
  if (signal) border = zoneColour(lit_, palette());
  painter.setPen(bordered ? QPen(border, signal ? 2 : 1) : QPen(Qt::NoPen));
  if (bordered || isEnabled()) {
    const bool flat = !bordered && !lit && !isDown() && !underMouse();
    painter.setBrush(flat ? QBrush() : QBrush(ground));
    painter.drawRoundedRect(box, kRadius, kRadius);
  }
  if (!showsRing()) return;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(tone(Tone::Focus, palette()), 2));
  painter.drawRoundedRect(box.adjusted(1.5, 1.5, -1.5, -1.5), kRadius, kRadius);
}

void StateButton::paintRail(QPainter& painter) {
  const QRectF box = rect();
  if (isChecked()) {
    painter.fillRect(QRectF(0, 4, 3, box.height() - 8), tone(Tone::Focus, palette()));
  }
  painter.setPen(ink());
  if (box.height() >= kTallRail) {
    const double side = std::min(26.0, box.height() - 30);
    drawGlyph(painter, QRectF(box.center().x() - side / 2, box.center().y() - side / 2 - 9, side, side),
              glyph_, ink());
    const QRectF word(4, box.center().y() + side / 2 - 6, box.width() - 8, 20);
    drawn_ = drawFitted(painter, word, Qt::AlignCenter, caption_, captionFont(), 1);
  } else {
    const double side = std::min(18.0, box.height() - 8);
    drawGlyph(painter, QRectF(8, box.center().y() - side / 2, side, side), glyph_, ink());
    const QRectF word = box.adjusted(8 + side + 6, 0, -4, 0);
    drawn_ = drawFitted(painter, word, Qt::AlignVCenter | Qt::AlignLeft, caption_, captionFont(), 1);
  }
}

void StateButton::paintSwitch(QPainter& painter) {
  const QRectF box = QRectF(rect()).adjusted(5, 5, -5, -5);
  const double left = isChecked() ? box.right() - box.height() : box.left();
  painter.setPen(Qt::NoPen);
  painter.setBrush(ink());
  painter.drawRoundedRect(QRectF(left, box.top(), box.height(), box.height()), 3, 3);
}

void StateButton::paintRow(QPainter& painter) {
  const bool big = !shows(Look::Plain);
  const double edge = big && width() >= kRoomy ? 2 * kPadding : kPadding;
  QRectF box = QRectF(rect()).adjusted(edge, 3, -edge, -3);
  if (isCheckable()) {
    const double side = big ? 2 * kLamp : kLamp;
    const QRectF lamp(box.left(), box.center().y() - side / 2, side, side);
    if (isChecked() && lit_ != Zone::Empty) {
      drawZoneMark(painter, lamp, lit_, palette());
    } else {
      const QColor filled = isEnabled() ? tone(Tone::Focus, palette()) : ink();
      painter.setPen(QPen(isChecked() ? filled : tone(Tone::Muted, palette()), 1.5));
      painter.setBrush(isChecked() ? QBrush(filled) : QBrush());
      painter.drawEllipse(lamp.adjusted(1, 1, -1, -1));
    }
    box.setLeft(lamp.right() + (edge > kPadding ? 2 * kGap : kGap));
  }
  if (glyph_ != Glyph::None) {
    const double side = std::min(box.height(), QFontMetricsF(captionFont()).height());
    const double left = caption_.isEmpty() ? box.center().x() - side / 2 : box.right() - side;
    drawGlyph(painter, QRectF(left, box.center().y() - side / 2, side, side), glyph_, ink());
    box.setRight(left - kGap);
  }
  painter.setPen(ink());
  const Qt::Alignment across = isCheckable() || glyph_ != Glyph::None ? Qt::AlignLeft : Qt::AlignHCenter;
  drawn_ = drawFitted(painter, box, across | Qt::AlignVCenter, caption_, captionFont(), big ? 4 : 2);
}

void StateButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  paintGround(painter);
  if (shows(Look::Rail)) {
    paintRail(painter);
  } else if (shows(Look::Switch)) {
    paintSwitch(painter);
  } else {
    paintRow(painter);
  }
}

// A caption that is cut is told whole by the tooltip.
bool StateButton::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && drawn_.cut && !toolTip().contains(caption_)) {
    const QString whole = toolTip().isEmpty() ? caption_ : caption_ + QLatin1Char('\n') + toolTip();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), whole, this);
    return true;
  }
  return Pressable::event(event);
}

}  // namespace zephon
