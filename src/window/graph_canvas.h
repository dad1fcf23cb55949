#pragma once

#include <qcustomplot.h>

#include <memory>
#include <optional>
#include <vector>

#include "screen/graph.h"
#include "window/graph_axes.h"
#include "window/graph_cursor.h"
#include "window/graph_line.h"
#include "window/graph_marks.h"

namespace zephon {

// The drawing of a graph element: keeps the library's axes, lines and cursors in step with it, and the part
// of it that is in view. An axis follows what there is until the user moves it.
class GraphCanvas : public QCustomPlot {
 public:
  GraphCanvas(Graph& element, QWidget* parent);

  // At once when the element has changed: points that it has given up are not looked at again.
  void letGo();
  // Draws the element as it is now.
  void follow();
  // The same if what is drawn has been given up: for what the user does before the loop turns.
  void catchUp() {
    if (letGo_ || picture_ != element_.picture()) follow();
  }
  void dressUp();  // font or palette have changed

  // What is in view, on the X axis: all there is, the last hour of it, or what the user has chosen.
  enum class Span { All, LastHour, Own };
  void show(Span span);
  Span span() const { return span_; }
  // Moves the view by shares of its width and height. A height of 0 leaves the Y axes following.
  void pan(double right, double up);
  // Below 1 shows less; about the middle, or about the active cursor when it is in view.
  void zoomTime(double factor);
  void zoomValues(double factor);

  // The cursor that the keyboard moves.
  void nextCursor();
  void stepCursor(int points);
  void slideCursor(double share);  // of the view's width
  // To the next plot, or a level by a hundredth of its axis.
  void raiseCursor(int steps);

  std::size_t lines() const { return lines_.size(); }
  const PlotLine& line(std::size_t plot) const { return *lines_.at(plot); }
  const QCPAxis& axis(std::size_t number) const { return *axes_.at(number).axis; }

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct YAxis {
    QCPAxis* axis = nullptr;  // the library's
    QSharedPointer<UnitTicker> ticker;
    bool own = false;                                  // the user has moved it
    std::optional<double> minimum = {}, maximum = {};  // as the element had them
  };
  // What the left button holds: a cursor, an axis, or the whole view.
  struct Drag {
    std::optional<std::size_t> cursor;
    QCPAxis* axis = nullptr;
    QPointF last;
  };

  void build();
  void buildAxes();
  void followLines();
  void followX();
  void titleAxes();
  void followCursors();
  void followMarks();

  void takeRanges();
  void fitRanges();
  void fitX();
  void fitY(std::size_t axis);
  void reveal(double x);
  void scale(QCPAxis& axis, double factor, double about);
  void move(QCPAxis& axis, double by);
  YAxis* yAxisOf(const QCPAxis* axis);

  QCPAxis& axisOf(std::optional<std::size_t> plot) const;
  std::optional<std::size_t> cursorAt(QPointF pixel) const;
  QCPAxis* axisAt(QPointF pixel) const;
  std::optional<std::size_t> plotNear(std::size_t cursor, QPointF pixel) const;
  void dragCursor(std::size_t cursor, QPointF pixel);
  void dragView(const Drag& drag, QPointF to, bool values);
  // Lets a cursor go on a point, or at a level.
  void dropOn(std::size_t cursor, std::size_t plot, std::size_t index);
  void dropAt(std::size_t cursor, double level);
  void redrawCursors();
  std::optional<std::size_t> activeCursor() const;

  Graph& element_;
  std::uint64_t picture_ = 0;     // the element's for which these were made
  std::vector<YAxis> axes_;       // one an axis of the element
  std::vector<PlotLine*> lines_;  // the library's, one a plot
  LineSymbols symbols_{*this, lines_};
  GraphMarks marks_{*this};
  std::uint64_t markings_ = 0;
  std::vector<std::unique_ptr<CursorLine>> cursors_;
  std::size_t active_ = 0;
  std::optional<Drag> drag_;
  bool letGo_ = false;
  Span span_ = Span::All;
  std::optional<std::pair<double, double>> givenX_;  // as the element had it
  QSharedPointer<SerialTicker> dates_ = QSharedPointer<SerialTicker>::create();
  QSharedPointer<DivisionTicker> numbers_ = QSharedPointer<DivisionTicker>::create();
};

}  // namespace zephon
