#include "window/zone.h"

#include <QPainter>
#include <QPolygonF>

#include "window/colours.h"
#include "window/words.h"

namespace zephon {

Zone zoneOf(Colour pointer) {
  if (pointer == kUnjudged) return Zone::Empty;
  if (pointer == kYellow) return Zone::Caution;
  return pointer == kRed ? Zone::Alarm : Zone::Good;
}

QString zoneWord(Zone zone) {
  switch (zone) {
    case Zone::Good:
      return say(words::kNormal);
    case Zone::Caution:
      return say(words::kMarginal);
    case Zone::Alarm:
      return say(words::kOutOfRange);
    case Zone::NotLive:
      return say(words::kNotLive);
    case Zone::Off:
      return say(words::kOff);
    case Zone::Empty:
      break;
  }
  return {};
}

QColor zoneColour(Zone zone, const QPalette& palette) {
  switch (zone) {
    case Zone::Good:
      return tone(Tone::Good, palette);
    case Zone::Caution:
      return tone(Tone::Caution, palette);
    case Zone::Alarm:
      return tone(Tone::Alarm, palette);
    default:
      return tone(Tone::Muted, palette);
  }
}

void drawZoneMark(QPainter& painter, const QRectF& box, Zone zone, const QPalette& palette) {
  if (zone == Zone::Empty) return;
  const QColor colour = zoneColour(zone, palette);
  const bool hollow = zone == Zone::NotLive || zone == Zone::Off;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour, hollow ? 1.5 : 1.0));
  painter.setBrush(hollow ? QBrush() : QBrush(colour));
  const QRectF in = box.adjusted(1, 1, -1, -1);
  const QPointF top(in.center().x(), in.top());
  if (zone == Zone::Caution) {
    painter.drawPolygon(QPolygonF({top, in.bottomRight(), in.bottomLeft()}));
  } else if (zone == Zone::Alarm) {
    painter.drawPolygon(
        QPolygonF({top, QPointF(in.right(), in.center().y()), QPointF(in.center().x(), in.bottom()),
                   QPointF(in.left(), in.center().y())}));
  } else {
    painter.drawEllipse(in);
  }
  painter.restore();
}

}  // namespace zephon
