#pragma once

#include <cstddef>
#include <limits>
#include <optional>

namespace zephon {

// The lowest and the highest of some values. It begins with none.
struct ValueRange {
  double low = std::numeric_limits<double>::infinity();
  double high = -std::numeric_limits<double>::infinity();

  bool empty() const { return !(low <= high); }
  // What is no number changes nothing.
  void add(double value) { add(ValueRange{value, value}); }
  void add(const ValueRange& other) {
    if (other.low < low) low = other.low;
    if (other.high > high) high = other.high;
  }
  bool operator==(const ValueRange&) const = default;
};

// The points of a plot, read where they lie. The x values never fall. The owner keeps it valid while a plot
// holds it, and tells the graph when it has grown; the points that stand do not change.
class PlotData {
 public:
  PlotData() = default;
  PlotData(const PlotData&) = delete;
  PlotData& operator=(const PlotData&) = delete;
  virtual ~PlotData() = default;
  virtual std::size_t size() const = 0;
  virtual double x(std::size_t index) const = 0;
  // What is no number is a gap: the line breaks there.
  virtual double y(std::size_t index) const = 0;

  // The lowest and the highest y of the points [first, last); nothing where all of them are gaps. Reads every
  // one of them, unless the owner keeps its extremes as it grows: then a long stretch costs no more than a
  // short one.
  virtual std::optional<ValueRange> extremes(std::size_t first, std::size_t last) const;
};

}  // namespace zephon
