#include "window/fitted_text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>
#include <algorithm>
#include <cmath>

namespace zephon {
namespace {

constexpr double kSmallest = 0.75;  // of the font's size
constexpr int kSteps = 5;           // from the font's own size down to it

// Greedy lines of whole words; a word that is wider than the box stands alone.
QStringList brokenLines(const QString& text, const QFontMetricsF& metrics, double width) {
  QStringList lines;
  for (const QString& word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
    const QString longer = lines.isEmpty() ? word : lines.last() + QLatin1Char(' ') + word;
    if (lines.isEmpty() || metrics.horizontalAdvance(longer) > width) {
      lines.append(word);
    } else {
      lines.last() = longer;
    }
  }
  return lines;
}

bool fits(const QStringList& lines, const QFontMetricsF& metrics, const QSizeF& box, int maximumLines) {
  if (lines.size() > maximumLines) return false;
  if (lines.size() > 1 && metrics.lineSpacing() * static_cast<double>(lines.size()) > box.height())
    return false;
  return std::all_of(lines.begin(), lines.end(),
                     [&](const QString& line) { return metrics.horizontalAdvance(line) <= box.width(); });
}

QFont sized(const QFont& font, double factor) {
  QFont smaller = font;
  if (font.pointSizeF() > 0) {
    smaller.setPointSizeF(font.pointSizeF() * factor);
  } else {
    smaller.setPixelSize(std::max(1, static_cast<int>(std::lround(font.pixelSize() * factor))));
  }
  return smaller;
}

FittedText cutText(const QString& text, const QFont& font, const QSizeF& box, int maximumLines) {
  const QFontMetricsF metrics(font);
  const int room = std::clamp(static_cast<int>(box.height() / metrics.lineSpacing()), 1, maximumLines);
  QStringList lines = brokenLines(text, metrics, box.width());
  const QString rest = lines.mid(room - 1).join(QLatin1Char(' '));
  lines = lines.mid(0, room - 1);
  lines.append(rest);
  for (QString& line : lines) line = metrics.elidedText(line, Qt::ElideRight, box.width());
  return {font, lines.join(QLatin1Char('\n')), true};
}

}  // namespace

FittedText fitText(const QString& text, const QFont& font, const QSizeF& box, int maximumLines) {
  if (text.isEmpty() || box.isEmpty()) return {font, {}, false};
  for (int step = 0; step <= kSteps; ++step) {
    const QFont candidate = sized(font, 1 - (1 - kSmallest) * step / kSteps);
    const QFontMetricsF metrics(candidate);
    const QStringList lines = brokenLines(text, metrics, box.width());
    if (fits(lines, metrics, box, maximumLines)) return {candidate, lines.join(QLatin1Char('\n')), false};
  }
  return cutText(text, sized(font, kSmallest), box, maximumLines);
}

FittedText drawFitted(QPainter& painter, const QRectF& box, Qt::Alignment alignment, const QString& text,
                      const QFont& font, int maximumLines) {
  FittedText fitted = fitText(text, font, box.size(), maximumLines);
  painter.setFont(fitted.font);
  painter.drawText(box, static_cast<int>(alignment) | Qt::TextDontClip, fitted.text);
  return fitted;
}

}  // namespace zephon
