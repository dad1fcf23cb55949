#include "screen/growing_extremes.h"

#include <utility>

namespace zephon {

void GrowingExtremes::add(double value) {
  ValueRange more{value, value};
  std::size_t count = ++size_;
  for (std::size_t i = 0;; ++i) {
    if (i == levels_.size()) levels_.emplace_back();
    Level& level = levels_[i];
    level.filling.add(more);
    if (count % kBlock != 0) return;
    more = std::exchange(level.filling, {});
    level.whole.push_back(more);
    count /= kBlock;
  }
}

}  // namespace zephon
