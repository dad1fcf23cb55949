#include "window/glyph.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>

namespace zephon {
namespace {

// Every path lies in a box of 24 by 24.
constexpr double kBox = 24;

void line(QPainterPath& path, std::initializer_list<QPointF> points) {
  const auto* point = points.begin();
  path.moveTo(*point);
  while (++point != points.end()) path.lineTo(*point);
}

QPainterPath measure() {  // a needle over its scale
  QPainterPath path;
  path.arcMoveTo(3, 5, 18, 18, 200);
  path.arcTo(3, 5, 18, 18, 200, -220);
  line(path, {{12, 14}, {16.5, 8.5}});
  path.addEllipse(QPointF(12, 14), 1.2, 1.2);
  return path;
}

QPainterPath scope() {
  QPainterPath path;
  path.addRoundedRect(2.5, 4.5, 19, 15, 2, 2);
  path.moveTo(5.5, 12);
  path.cubicTo(8, 4.5, 9.5, 4.5, 12, 12);
  path.cubicTo(14.5, 19.5, 16, 19.5, 18.5, 12);
  return path;
}

QPainterPath chart() {
  QPainterPath path;
  line(path, {{3.5, 3.5}, {3.5, 20.5}, {21, 20.5}});
  line(path, {{6.5, 15.5}, {10.5, 10.5}, {14, 13}, {20, 6}});
  return path;
}

QPainterPath outlets() {
  QPainterPath path;
  path.addEllipse(QPointF(12, 12), 9, 9);
  line(path, {{9, 8}, {9, 12}});
  line(path, {{15, 8}, {15, 12}});
  path.addEllipse(QPointF(12, 16), 1.2, 1.2);
  return path;
}

QPainterPath data() {
  QPainterPath path;
  path.addRoundedRect(4.5, 3, 15, 18, 1.5, 1.5);
  for (const double y : {8.0, 12.0, 16.0}) line(path, {{8, y}, {16, y}});
  return path;
}

QPainterPath setup() {
  QPainterPath path;
  constexpr double kKnobs[] = {15, 8, 13};
  for (int row = 0; row < 3; ++row) {
    const double y = 6 + 6 * row;
    const double knob = kKnobs[row];
    line(path, {{3, y}, {knob - 2, y}});
    line(path, {{knob + 2, y}, {21, y}});
    path.addEllipse(QPointF(knob, y), 2, 2);
  }
  return path;
}

QPainterPath port() {  // a plug with its cable
  QPainterPath path;
  line(path, {{9, 2.5}, {9, 7}});
  line(path, {{15, 2.5}, {15, 7}});
  path.moveTo(6, 7);
  path.lineTo(18, 7);
  path.lineTo(18, 11);
  path.cubicTo(18, 15, 15.5, 16.5, 12, 16.5);
  path.cubicTo(8.5, 16.5, 6, 15, 6, 11);
  path.closeSubpath();
  line(path, {{12, 16.5}, {12, 21.5}});
  return path;
}

QPainterPath help() {
  QPainterPath path;
  path.addEllipse(QPointF(12, 12), 9, 9);
  path.moveTo(9, 9.5);
  path.cubicTo(9, 5.5, 15, 5.5, 15, 9.5);
  path.cubicTo(15, 12, 12, 11.5, 12, 14);
  path.addEllipse(QPointF(12, 17), 0.6, 0.6);
  return path;
}

QPainterPath save() {  // down into a tray
  QPainterPath path;
  line(path, {{12, 3}, {12, 14.5}});
  line(path, {{7.5, 10}, {12, 14.5}, {16.5, 10}});
  line(path, {{3.5, 15.5}, {3.5, 20.5}, {20.5, 20.5}, {20.5, 15.5}});
  return path;
}

QPainterPath expert() {  // findings ticked off
  QPainterPath path;
  for (const double y : {6.0, 12.0, 18.0}) {
    line(path, {{3, y}, {5, y + 2}, {8.5, y - 2.5}});
    line(path, {{12, y}, {21, y}});
  }
  return path;
}

QPainterPath lens(bool plus) {
  QPainterPath path;
  path.addEllipse(QPointF(10, 10), 6.5, 6.5);
  line(path, {{15, 15}, {21, 21}});
  line(path, {{7, 10}, {13, 10}});
  if (plus) line(path, {{10, 7}, {10, 13}});
  return path;
}

QPainterPath advice() {
  QPainterPath path;
  line(path, {{4, 12}, {20, 12}});
  line(path, {{14, 6}, {20, 12}, {14, 18}});
  return path;
}

QPainterPath pathOf(Glyph glyph) {
  QPainterPath path;
  switch (glyph) {
    case Glyph::Measure:
      return measure();
    case Glyph::Scope:
      return scope();
    case Glyph::Chart:
      return chart();
    case Glyph::Outlets:
      return outlets();
    case Glyph::Data:
      return data();
    case Glyph::Setup:
      return setup();
    case Glyph::Port:
      return port();
    case Glyph::Help:
      return help();
    case Glyph::Save:
      return save();
    case Glyph::Expert:
      return expert();
    case Glyph::ZoomIn:
      return lens(true);
    case Glyph::ZoomOut:
      return lens(false);
    case Glyph::Advice:
      return advice();
    case Glyph::Up:
      line(path, {{5, 16}, {12, 8}, {19, 16}});
      break;
    case Glyph::Down:
      line(path, {{5, 8}, {12, 16}, {19, 8}});
      break;
    case Glyph::None:
      break;
  }
  return path;
}

}  // namespace

void drawGlyph(QPainter& painter, const QRectF& box, Glyph glyph, const QColor& colour) {
  const double side = std::min(box.width(), box.height());
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(box.center().x() - side / 2, box.center().y() - side / 2);
  painter.scale(side / kBox, side / kBox);
  painter.setPen(QPen(colour, 1.7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(pathOf(glyph));
  painter.restore();
}

}  // namespace zephon
