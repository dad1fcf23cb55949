#include "screen/plot_data.h"

namespace zephon {

std::optional<ValueRange> PlotData::extremes(std::size_t first, std::size_t last) const {
  ValueRange range;
  for (; first < last; ++first) range.add(y(first));
  if (range.empty()) return {};
  return range;
}

}  // namespace zephon
