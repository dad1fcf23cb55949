#include "window/graph_line.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "window/colours.h"

namespace zephon {
namespace {

constexpr double kNarrow = 1;          // pixels that a stretch may be wide to be drawn as one
constexpr qsizetype kDense = 500;      // points from which on a line is drawn thin
constexpr double kSymbolsApart = 110;  // pixels, about
constexpr double kSymbolSize = 9;

}  // namespace

PlotLine::PlotLine(QCPAxis& keyAxis, QCPAxis& valueAxis, std::size_t number)
    : QCPAbstractPlottable(&keyAxis, &valueAxis), number_(number) {
  setSelectable(QCP::stNone);
}

void PlotLine::setData(std::shared_ptr<const PlotData> data) {
  data_ = std::move(data);
  extremes_.clear();
  pieces_.clear();
}

void PlotLine::grow() {
  if (!data_) return;
  const std::size_t now = data_->size();
  if (now < size()) extremes_.clear();
  extremes_.grow(*data_, now);
}

std::optional<std::size_t> PlotLine::nearest(double x) const {
  return data_ ? nearestPoint(*data_, size(), x) : std::nullopt;
}

void PlotLine::setStyle(const PlotStyle& style) {
  style_ = style;
  setPen(QPen(style.colour));
}

QCPRange PlotLine::getKeyRange(bool& found, QCP::SignDomain /*domain*/) const {
  found = !empty();
  return found ? QCPRange(firstX(), lastX()) : QCPRange();
}

QCPRange PlotLine::getValueRange(bool& found, QCP::SignDomain /*domain*/, const QCPRange& /*keys*/) const {
  const Extremes::Pair all = extremes_.all();
  found = all.least != Extremes::kNone;
  return found ? QCPRange(data_->y(all.least), data_->y(all.greatest)) : QCPRange();
}

PlotLine::Stretch PlotLine::inView() const {
  if (empty()) return {};
  const QCPRange view = keyAxis()->range();
  const std::size_t first = firstFrom(*data_, size(), view.lower);
  const std::size_t past = firstFrom(*data_, size(), std::nextafter(view.upper, view.upper + 1));
  return {first > 0 ? first - 1 : 0, std::min(past + 1, size())};
}

QPointF PlotLine::pixelOf(std::size_t index) const {
  // Far outside, a line would lose its way in the painter's numbers.
  constexpr double kFar = 1e6;
  return {std::clamp(keyAxis()->coordToPixel(data_->x(index)), -kFar, kFar),
          std::clamp(valueAxis()->coordToPixel(data_->y(index)), -kFar, kFar)};
}

// In which order its two points are drawn can not be seen in a column of pixels. That which is nearer to the
// point before comes first: a dense line is half as long, and as quickly painted, as in the order of time.
void PlotLine::flush() {
  if (column_.points.least == Extremes::kNone) return;
  QPolygonF& piece = pieces_.back();
  const auto [least, greatest] = column_.points;
  const bool up = piece.isEmpty()
                      ? least < greatest
                      : std::abs(column_.least - reached_) <= std::abs(column_.greatest - reached_);
  piece << pixelOf(up ? least : greatest);
  if (least != greatest) piece << pixelOf(up ? greatest : least);
  reached_ = up ? column_.greatest : column_.least;
  column_.points = {Extremes::kNone, Extremes::kNone};
}

void PlotLine::breakOff() {
  flush();
  if (!pieces_.back().isEmpty()) pieces_.emplace_back();
}

// Points that fall into the same column of pixels are drawn as the column's extremes.
void PlotLine::take(const Extremes::Pair& points, double least, double greatest) {
  const double pixel = std::floor(pixelsTo(std::min(points.least, points.greatest)));
  if (pixel != columnPixel_) flush();
  columnPixel_ = pixel;
  const bool first = column_.points.least == Extremes::kNone;
  if (first || least < column_.least) {
    column_.points.least = points.least;
    column_.least = least;
  }
  if (first || greatest > column_.greatest) {
    column_.points.greatest = points.greatest;
    column_.greatest = greatest;
  }
}

void PlotLine::takeBlock(const Extremes::Pair& points) {
  if (points.least == Extremes::kNone) return breakOff();
  take(points, data_->y(points.least), data_->y(points.greatest));
}

void PlotLine::takePoint(std::uint32_t index) {
  const double value = data_->y(index);
  std::isfinite(value) ? take({index, index}, value, value) : breakOff();
}

void PlotLine::traceBlock(std::size_t level, std::size_t number, const Stretch& stretch) {
  std::size_t width = Extremes::kFan;
  for (std::size_t below = 0; below < level; ++below) width *= Extremes::kFan;
  const std::size_t first = number * width;
  const std::size_t end = std::min(first + width, size());
  if (end <= stretch.first || first >= stretch.end) return;
  const bool whole = first >= stretch.first && end <= stretch.end;
  if (whole && pixelsTo(end - 1) - pixelsTo(first) < kNarrow)
    return takeBlock(extremes_.block(level, number));
  if (level > 0) {
    for (std::size_t i = number * Extremes::kFan;
         i < std::min((number + 1) * Extremes::kFan, extremes_.blocks(level - 1)); ++i) {
      traceBlock(level - 1, i, stretch);
    }
    return;
  }
  for (std::size_t i = std::max(first, stretch.first); i < std::min(end, stretch.end); ++i)
    takePoint(static_cast<std::uint32_t>(i));
}

void PlotLine::trace(const Stretch& stretch) {
  pieces_.assign(1, {});
  if (stretch.first >= stretch.end) return;
  columnPixel_ = -HUGE_VAL;
  const QCPRange view = keyAxis()->range();
  lower_ = view.lower;
  pixelsEach_ = keyAxis()->axisRect()->width() / view.size();
  traceBlock(extremes_.levels() - 1, 0, stretch);
  flush();
}

namespace {

// Line by line: smoothing one long line that crosses itself again and again would take seconds.
void drawSmooth(QPainter& painter, const QPolygonF& piece) {
  QVector<QLineF> lines;
  lines.reserve(piece.size() - 1);
  for (qsizetype i = 1; i < piece.size(); ++i) lines.append({piece[i - 1], piece[i]});
  painter.drawLines(lines);
}

}  // namespace

void PlotLine::draw(QCPPainter* painter) {
  const Stretch stretch = inView();
  trace(stretch);
  qsizetype count = 0;
  for (const QPolygonF& piece : pieces_) count += piece.size();
  const bool dense = count > kDense;
  painter->setAntialiasing(!dense);
  painter->setBrush(Qt::NoBrush);
  const QPen line(style_.colour, dense ? 1 : 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  const QPen dot(style_.colour, 4, Qt::SolidLine, Qt::RoundCap);
  for (const QPolygonF& piece : pieces_) {
    painter->setPen(piece.size() > 1 ? line : dot);
    if (piece.size() == 1) {
      painter->drawPoints(piece);
    } else if (dense) {
      painter->drawPolyline(piece);
    } else {
      drawSmooth(*painter, piece);
    }
  }
}

// On points whose numbers are round, so that they stay where they are as the plot grows, and beside those of
// the other plots.
void PlotLine::drawSymbols(QCPPainter& painter) const {
  const Stretch stretch = inView();
  if (stretch.first >= stretch.end) return;
  const double width = std::abs(keyAxis()->coordToPixel(data_->x(stretch.end - 1)) -
                                keyAxis()->coordToPixel(data_->x(stretch.first)));
  const double each = static_cast<double>(stretch.end - stretch.first) * kSymbolsApart / std::max(width, 1.0);
  std::size_t stride = 1;
  while (static_cast<double>(stride) < each) stride *= 2;
  const QPen pen(style_.colour, 2);
  const QCPScatterStyle symbol(style_.symbol, pen, tone(Tone::Card, mParentPlot->palette()), kSymbolSize);
  symbol.applyTo(&painter, pen);
  const std::size_t shift = number_ * stride / 8 % stride;
  for (std::size_t i = (stretch.first / stride) * stride + shift; i < stretch.end; i += stride) {
    if (i >= stretch.first && std::isfinite(data_->y(i))) symbol.drawShape(&painter, pixelOf(i));
  }
}

void LineSymbols::draw(QCPPainter* painter) {
  for (const PlotLine* line : lines_) {
    if (line->realVisibility()) line->drawSymbols(*painter);
  }
}

}  // namespace zephon
