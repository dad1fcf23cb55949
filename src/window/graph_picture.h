#pragma once

#include <QByteArray>
#include <QString>

class QCustomPlot;
class QWidget;

namespace zephon {

// A graph as it stands on screen with its legend above it, as the bytes of a file.
QByteArray pngOf(QCustomPlot& plot, const QString& legend);
QByteArray svgOf(QCustomPlot& plot, const QString& legend);

// Asks for a file and saves the picture there, an .svg or a .png by the name's ending. Tells in a box when it
// can't.
void savePicture(QWidget& parent, QCustomPlot& plot, const QString& legend);

}  // namespace zephon
