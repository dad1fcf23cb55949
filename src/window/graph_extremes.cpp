#include "window/graph_extremes.h"

#include <algorithm>
#include <cmath>

namespace zephon {
namespace {

// Of two stretches, one after the other.
Extremes::Pair together(const PlotData& data, const Extremes::Pair& a, const Extremes::Pair& b) {
  if (a.least == Extremes::kNone) return b;
  if (b.least == Extremes::kNone) return a;
  return {data.y(b.least) < data.y(a.least) ? b.least : a.least,
          data.y(b.greatest) > data.y(a.greatest) ? b.greatest : a.greatest};
}

}  // namespace

void Extremes::clear() {
  levels_.clear();
  size_ = 0;
}

void Extremes::add(const PlotData& data, std::size_t index) {
  const bool value = std::isfinite(data.y(index));
  const auto number = static_cast<std::uint32_t>(index);
  const Pair own = value ? Pair{number, number} : Pair{kNone, kNone};
  std::size_t place = index;
  for (auto& level : levels_) {
    place /= kFan;
    if (place == level.size()) {
      level.push_back(own);
    } else if (value) {
      level[place] = together(data, level[place], own);
    }
  }
  if (levels_.empty()) levels_.push_back({own});
  if (levels_.back().size() < 2) return;
  const auto& below = levels_.back();
  levels_.push_back({together(data, below[0], below[1])});
}

void Extremes::grow(const PlotData& data, std::size_t size) {
  for (; size_ < std::min<std::size_t>(size, kNone); ++size_) add(data, size_);
}

std::size_t firstFrom(const PlotData& data, std::size_t size, double x) {
  std::size_t first = 0;
  while (size > 0) {
    const std::size_t half = size / 2;
    const bool below = data.x(first + half) < x;
    if (below) first += half + 1;
    size = below ? size - half - 1 : half;
  }
  return first;
}

std::optional<std::size_t> nextPoint(const PlotData& data, std::size_t size, std::size_t index, int step) {
  for (std::size_t at = index; step > 0 ? at + 1 < size : at > 0;) {
    at = step > 0 ? at + 1 : at - 1;
    if (std::isfinite(data.y(at))) return at;
  }
  return {};
}

std::optional<std::size_t> nearestPoint(const PlotData& data, std::size_t size, double x) {
  if (size == 0) return {};
  const std::size_t from = firstFrom(data, size, x);
  const auto before = nextPoint(data, size, from, -1);
  const auto after =
      from < size && std::isfinite(data.y(from)) ? std::optional(from) : nextPoint(data, size, from, 1);
  if (!before || !after) return before ? before : after;
  return std::abs(data.x(*before) - x) <= std::abs(data.x(*after) - x) ? before : after;
}

}  // namespace zephon
