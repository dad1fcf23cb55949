#pragma once

#include <vector>

#include "screen/plot_data.h"

namespace zephon {

// The extremes of a growing row of values: those of every 64 values, of every 64 of these, and so on up. So
// those of any stretch are found by a look at a few hundred numbers, and a value more costs next to nothing.
// The values themselves stay with their owner. Takes a quarter of a byte a value.
class GrowingExtremes {
 public:
  std::size_t size() const { return size_; }
  void add(double value);

  // Of the values [first, last), which have been added; `valueAt` reads one of them.
  template <class ValueAt>
  ValueRange of(std::size_t first, std::size_t last, ValueAt valueAt) const {
    ValueRange sum;
    for (std::size_t level = 0; first < last; ++level) {
      const auto take = [&](std::size_t i) {
        level == 0 ? sum.add(valueAt(i)) : sum.add(levels_[level - 1].whole[i]);
      };
      while (first < last && first % kBlock != 0) take(first++);
      while (first < last && last % kBlock != 0) take(--last);
      first /= kBlock;
      last /= kBlock;
    }
    return sum;
  }

 private:
  static constexpr std::size_t kBlock = 64;

  // Blocks of one size.
  struct Level {
    std::vector<ValueRange> whole;
    ValueRange filling;
  };

  std::vector<Level> levels_;
  std::size_t size_ = 0;
};

}  // namespace zephon
