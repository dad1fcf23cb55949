#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace zephon {

// Line drawings of the controls, drawn at any size in the text's colour.
enum class Glyph {
  None,
  Measure,
  Scope,
  Chart,
  Outlets,
  Data,
  Setup,
  Port,
  Help,
  Save,
  Expert,
  Up,
  Down,
  ZoomIn,
  ZoomOut,
  Advice
};

void drawGlyph(QPainter& painter, const QRectF& box, Glyph glyph, const QColor& colour);

}  // namespace zephon
