#pragma once

#include <qcustomplot.h>

#include <vector>

namespace zephon {

// X values that are pointed out: a band behind the plots at each, and a wedge at the top.
class GraphMarks : public QCPLayerable {
 public:
  explicit GraphMarks(QCustomPlot& plot) : QCPLayerable(&plot, QStringLiteral("grid")) {}
  void set(std::vector<double> marks) { marks_ = std::move(marks); }

 protected:
  QRect clipRect() const override { return mParentPlot->axisRect()->rect(); }
  void applyDefaultAntialiasingHint(QCPPainter* painter) const override { painter->setAntialiasing(false); }
  void draw(QCPPainter* painter) override;

 private:
  std::vector<double> marks_;
};

}  // namespace zephon
