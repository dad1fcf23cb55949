#pragma once

#include <qcustomplot.h>

#include <memory>
#include <vector>

#include "screen/graph.h"
#include "window/graph_extremes.h"

namespace zephon {

// What tells a plot from the others: its colour, as a line and as letters, and a symbol that stands on the
// line here and there.
struct PlotStyle {
  QColor colour;
  QColor ink;
  QCPScatterStyle::ScatterShape symbol;
};

// A plot as a line, drawn from its points where they lie: of a stretch that is narrower than a pixel the
// least and the greatest. Gaps break the line; a point alone is a dot.
class PlotLine : public QCPAbstractPlottable {
 public:
  PlotLine(QCPAxis& keyAxis, QCPAxis& valueAxis, std::size_t number);

  // Other points; none are taken in yet.
  void setData(std::shared_ptr<const PlotData> data);
  const std::shared_ptr<const PlotData>& data() const { return data_; }
  // Takes in the points that have come at the end. Others than these are not drawn.
  void grow();
  std::size_t size() const { return extremes_.size(); }
  bool empty() const { return size() == 0; }
  double firstX() const { return data_->x(0); }
  double lastX() const { return data_->x(size() - 1); }
  std::optional<std::size_t> nearest(double x) const;

  void setStyle(const PlotStyle& style);
  // The points through which the line was last drawn, a piece between gaps each.
  const std::vector<QPolygonF>& pieces() const { return pieces_; }

  // The symbols on the line as it was last drawn.
  void drawSymbols(QCPPainter& painter) const;

  double selectTest(const QPointF& /*pos*/, bool /*only*/, QVariant* /*details*/) const override {
    return -1;
  }
  QCPRange getKeyRange(bool& found, QCP::SignDomain domain = QCP::sdBoth) const override;
  QCPRange getValueRange(bool& found, QCP::SignDomain domain = QCP::sdBoth,
                         const QCPRange& keys = QCPRange()) const override;

 protected:
  void draw(QCPPainter* painter) override;
  void drawLegendIcon(QCPPainter* /*painter*/, const QRectF& /*rect*/) const override {}

 private:
  // The stretch in view, with a point more at either side, so that the line runs on to the edge.
  struct Stretch {
    std::size_t first = 0;
    std::size_t end = 0;
  };
  Stretch inView() const;
  void trace(const Stretch& stretch);
  void traceBlock(std::size_t level, std::size_t number, const Stretch& stretch);
  void takeBlock(const Extremes::Pair& points);
  void takePoint(std::uint32_t index);
  void take(const Extremes::Pair& points, double least, double greatest);
  void breakOff();
  void flush();
  // From the left edge.
  double pixelsTo(std::size_t index) const { return (data_->x(index) - lower_) * pixelsEach_; }
  QPointF pixelOf(std::size_t index) const;

  std::shared_ptr<const PlotData> data_;
  Extremes extremes_;
  std::size_t number_;
  PlotStyle style_{};
  std::vector<QPolygonF> pieces_;
  // While the line is traced: where the view begins, the extremes of the column of pixels that it has reached,
  // and the value up to which it is drawn.
  double lower_ = 0;
  double pixelsEach_ = 1;
  struct {
    Extremes::Pair points{Extremes::kNone, Extremes::kNone};
    double least = 0, greatest = 0;
  } column_;
  double columnPixel_ = 0;
  double reached_ = 0;
};

// The symbols of all lines, above all lines.
class LineSymbols : public QCPLayerable {
 public:
  // The lines have to stand whenever the plot is drawn.
  LineSymbols(QCustomPlot& plot, const std::vector<PlotLine*>& lines)
      : QCPLayerable(&plot, QStringLiteral("legend")), lines_(lines) {}

 protected:
  QRect clipRect() const override { return mParentPlot->axisRect()->rect(); }
  void applyDefaultAntialiasingHint(QCPPainter* painter) const override { painter->setAntialiasing(true); }
  void draw(QCPPainter* painter) override;

 private:
  const std::vector<PlotLine*>& lines_;
};

}  // namespace zephon
