#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "screen/element.h"

namespace zephon {

// The points of a plot, read where they lie. The x values never fall; a y that is no number is a gap in the
// line. The owner keeps it valid while a plot holds it, and tells the graph when it has grown; the points
// that stand do not change.
class PlotData {
 public:
  PlotData() = default;
  PlotData(const PlotData&) = delete;
  PlotData& operator=(const PlotData&) = delete;
  virtual ~PlotData() = default;
  virtual std::size_t size() const = 0;
  virtual double x(std::size_t index) const = 0;
  virtual double y(std::size_t index) const = 0;
};

// A graph: plots over one X axis, each on a Y axis of its own or one that it shares, an annotation a plot,
// and cursors. Widgets draw it; they tell apart by `revision` and size whether a plot was replaced or has
// grown.
class Graph : public Element {
 public:
  enum class XKind { Number, Date };  // dates are date serials, in days

  struct Axis {
    std::string name;   // "vaxis"
    std::string title;  // "Voltage (V)"
    // Without a range the axis fits itself to its visible plots.
    std::optional<double> minimum, maximum;
    bool visible = false;
    double division = 0;  // from one grid line to the next; 0 leaves it to the widget
    bool operator==(const Axis&) const = default;
  };

  struct Plot {
    std::string name;    // "voltage"
    std::string legend;  // "Line Voltage"
    std::string unit;    // "V"; empty for a bare number
    std::size_t axis = 0;
    bool visible = false;
    std::string annotation;  // the latest value, or what a cursor reads off; empty for none
    std::shared_ptr<const PlotData> data;
    std::uint64_t revision = 0;  // another one: the points are others; the same: there are more of them
  };

  struct Cursor {
    std::string name;  // "Cursor-1"
    bool visible = false;
    double x = 0;
    double y = 0;
    bool horizontal = false;          // a level to be dragged, instead of a point that snaps to a plot
    std::optional<std::size_t> plot;  // the plot on which it stands
    std::string reading = {};         // what it reads off, to be shown beside it; empty for nothing
    bool operator==(const Cursor&) const = default;
  };

  Graph(ElementList& list, std::string name) : Element(list, std::move(name)) {}

  // The user has let a cursor go; `index` is the nearest point of its plot, nothing for a level.
  std::function<void(std::size_t cursor, std::optional<std::size_t> index)> onCursor;

  XKind xKind() const { return xKind_; }
  const std::string& xTitle() const { return xTitle_; }
  void setX(XKind kind, std::string title);
  // Without a range the axis runs from the first to the last point.
  const std::optional<std::pair<double, double>>& xRange() const { return xRange_; }
  void setXRange(std::optional<std::pair<double, double>> range) { write(xRange_, range); }
  // As of an axis, where X is a number.
  double xDivision() const { return xDivision_; }
  void setXDivision(double division) { write(xDivision_, division); }

  // Sets up the axes, plots and cursors anew; everything that was drawn goes, and the view begins anew at all
  // that there is. The count of these tells one picture from the next.
  void setUp(std::vector<Axis> axes, std::vector<Plot> plots, std::vector<Cursor> cursors);
  std::uint64_t picture() const { return picture_; }
  const std::vector<Axis>& axes() const { return axes_; }
  const std::vector<Plot>& plots() const { return plots_; }
  const std::vector<Cursor>& cursors() const { return cursors_; }

  void setAxis(std::size_t axis, const Axis& state) { write(axes_.at(axis), state); }
  void setAxisVisible(std::size_t axis, bool on) { write(axes_.at(axis).visible, on); }
  void setPlotVisible(std::size_t plot, bool on) { write(plots_.at(plot).visible, on); }
  void setAnnotation(std::size_t plot, std::string text) {
    write(plots_.at(plot).annotation, std::move(text));
  }
  void setCursor(std::size_t cursor, const Cursor& state) { write(cursors_.at(cursor), state); }
  // Other points for a plot; none clears it.
  void setData(std::size_t plot, std::shared_ptr<const PlotData> data);
  // The plots' data have grown at their ends; nothing else of them has changed. Notifies once.
  void grown() { changed(); }

  // X values that are pointed out across all plots; the first is brought into view. The user may have looked
  // elsewhere since, so pointing out the same once more counts too.
  const std::vector<double>& marks() const { return marks_; }
  std::uint64_t markings() const { return markings_; }  // how many there were
  void setMarks(std::vector<double> marks) {
    marks_ = std::move(marks);
    ++markings_;
    changed();
  }

  // A view that is paused shows what there was when it was, while the plots go on growing. It ends with the
  // picture, or with the points that it shows.
  bool viewPaused() const { return viewPaused_; }
  void pauseView(bool on) { write(viewPaused_, on); }

  // What a user does: lets a cursor go at a place.
  void dropCursor(std::size_t cursor, double x, double y, std::optional<std::size_t> plot,
                  std::optional<std::size_t> index);

 private:
  XKind xKind_ = XKind::Date;
  std::string xTitle_;
  std::optional<std::pair<double, double>> xRange_;
  double xDivision_ = 0;
  std::vector<Axis> axes_;
  std::vector<Plot> plots_;
  std::vector<Cursor> cursors_;
  std::vector<double> marks_;
  std::uint64_t markings_ = 0;
  bool viewPaused_ = false;
  std::uint64_t picture_ = 0;
};

}  // namespace zephon
