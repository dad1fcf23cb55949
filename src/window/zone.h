#pragma once

#include <QColor>
#include <QPalette>
#include <QRectF>
#include <QString>

#include "screen/colour.h"

class QPainter;

namespace zephon {

// What a reading's colour says, so that it is never said by the colour alone.
// Empty is no reading, or one that nothing judges.
enum class Zone { Good, Caution, Alarm, NotLive, Off, Empty };

Zone zoneOf(Colour pointer);
QString zoneWord(Zone zone);
QColor zoneColour(Zone zone, const QPalette& palette);
// A shape of its own for each zone: disc, triangle, diamond; hollow disc for what is not live or off.
void drawZoneMark(QPainter& painter, const QRectF& box, Zone zone, const QPalette& palette);

}  // namespace zephon
