#pragma once

#include <QFont>
#include <QRectF>
#include <QString>

class QPainter;

namespace zephon {

// A text made to fit its box: first broken at its blanks, then set smaller, down to three quarters of the
// font, and cut with an ellipsis only when that is still too long.
struct FittedText {
  QFont font;
  QString text;  // with its line breaks
  bool cut = false;
};

FittedText fitText(const QString& text, const QFont& font, const QSizeF& box, int maximumLines = 2);

// Draws it in the painter's pen, and returns what was drawn.
FittedText drawFitted(QPainter& painter, const QRectF& box, Qt::Alignment alignment, const QString& text,
                      const QFont& font, int maximumLines = 2);

}  // namespace zephon
