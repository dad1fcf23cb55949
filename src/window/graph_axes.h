#pragma once

#include <qcustomplot.h>

#include "window/graph_line.h"

namespace zephon {

// Marks along an axis of date serials (days) at round seconds, minutes, hours or days, written as dates or,
// where they stand close, as times of day.
class SerialTicker : public QCPAxisTicker {
 protected:
  double getTickStep(const QCPRange& range) override;
  int getSubTickCount(double /*step*/) override { return 0; }
  QString getTickLabel(double tick, const QLocale& locale, QChar format, int precision) override;

 private:
  double step_ = 1;
};

// Numbers, where a division is set at each of it: at every second, fourth ... where they would stand too
// close, at halves, quarters ... where a single one would be seen.
class DivisionTicker : public QCPAxisTicker {
 public:
  void setDivision(double division) { division_ = division; }

 protected:
  double getTickStep(const QCPRange& range) override;

 private:
  double division_ = 0;  // none
};

// Numbers, of which the topmost has the axis's unit above it.
class UnitTicker : public DivisionTicker {
 public:
  void setUnit(const QString& unit) { unit_ = unit; }

 protected:
  QVector<QString> createLabelVector(const QVector<double>& ticks, const QLocale& locale, QChar format,
                                     int precision) override;

 private:
  QString unit_;  // empty for none
};

// Plots take their styles in this order, over and over.
inline constexpr std::size_t kPlotStyles = 8;
// Colours and symbol of the plot of that number.
PlotStyle plotStyle(std::size_t number, const QPalette& palette);
// The symbol as a character.
QString symbolText(std::size_t number);

// Fonts and colours of the desktop for an axis, its numbers in `ink`; without `grid` its marks draw no lines
// across the graph.
void dress(QCPAxis& axis, const QFont& font, const QPalette& palette, const QColor& ink, bool grid);

// A range that an axis can show: with a share of its width added at both ends, and not narrower than `least`
// of the value that it lies at. Anything that no axis can show becomes 0 to 1.
QCPRange roomy(const QCPRange& range, double share, double least);

}  // namespace zephon
