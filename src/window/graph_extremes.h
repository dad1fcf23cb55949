#pragma once

#include <cstdint>
#include <vector>

#include "screen/graph.h"

namespace zephon {

// The least and the greatest point of any stretch of a plot, kept up as the plot grows, so that a drawing
// need not look at every point and still loses none that stands out. Blocks of eight points, of eight such
// blocks and so on up to one of all, each with the numbers of its two points: nine bytes for eight points.
class Extremes {
 public:
  // Numbers of points; both kNone where a block is all gap.
  struct Pair {
    std::uint32_t least;
    std::uint32_t greatest;
  };
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;
  static constexpr std::size_t kFan = 8;

  // Takes in the points from size() on up to `size` at most.
  void grow(const PlotData& data, std::size_t size);
  void clear();

  std::size_t size() const { return size_; }
  // Level 0 has blocks of kFan points, each level above kFan times as many; the last has one block.
  std::size_t levels() const { return levels_.size(); }
  const Pair& block(std::size_t level, std::size_t number) const { return levels_[level][number]; }
  std::size_t blocks(std::size_t level) const { return levels_[level].size(); }
  // Of all points.
  Pair all() const { return levels_.empty() ? Pair{kNone, kNone} : levels_.back().front(); }

 private:
  void add(const PlotData& data, std::size_t index);

  std::vector<std::vector<Pair>> levels_;
  std::size_t size_ = 0;
};

// The number of the first point whose x is not below `x`; `size` where there is none.
std::size_t firstFrom(const PlotData& data, std::size_t size, double x);

// The point with a value whose x lies nearest; nothing of a plot without any.
std::optional<std::size_t> nearestPoint(const PlotData& data, std::size_t size, double x);
// The next point with a value after `index`, before it for a step back; nothing at the end.
std::optional<std::size_t> nextPoint(const PlotData& data, std::size_t size, std::size_t index, int step);

}  // namespace zephon
