#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <memory>
#include <numeric>
#include <span>
#include <vector>

#include "screen/graph.h"

namespace zephon {

// The columns of a log's table as the points of plots, over the rows' moments in ascending order, read where
// they lie. The table stands in the order of the device's memory: after a wrap, or when the clock was set
// back, its moments fall, and the rows are put in order by their numbers.
template <std::size_t Columns>
class PlottedRows {
 public:
  using Row = std::array<double, Columns>;
  using Moment = double (*)(const Row&);
  using Gap = bool (*)(const Row&);

  // `isGap` tells the rows in which nothing was measured, their values zero.
  PlottedRows(std::span<const Row> rows, Moment momentOf, Gap isGap = nullptr)
      : rows_(rows), moment_(momentOf), gap_(isGap) {
    const auto earlier = [this](std::uint32_t a, std::uint32_t b) {
      return moment_(rows_[a]) < moment_(rows_[b]);
    };
    std::vector<std::uint32_t> order(rows.size());
    std::iota(order.begin(), order.end(), 0U);
    if (std::is_sorted(order.begin(), order.end(), earlier)) return;
    std::stable_sort(order.begin(), order.end(), earlier);
    order_ = std::move(order);
  }

  std::size_t size() const { return rows_.size(); }
  double moment(std::size_t index) const { return moment_(row(index)); }
  const Row& row(std::size_t index) const { return rows_[order_.empty() ? index : order_[index]]; }
  // No number in a gap.
  double value(std::size_t index, std::size_t column) const {
    const Row& one = row(index);
    const bool gap = one[column] == 0 && gap_ && gap_(one);
    return gap ? std::numeric_limits<double>::quiet_NaN() : one[column];
  }
  double largest(std::size_t column) const {
    double value = 0;
    for (const Row& one : rows_) value = std::max(value, one[column]);
    return value;
  }
  bool isZero(std::size_t column) const {
    return std::all_of(rows_.begin(), rows_.end(), [column](const Row& one) { return one[column] == 0; });
  }

 private:
  std::span<const Row> rows_;
  Moment moment_;
  Gap gap_;
  std::vector<std::uint32_t> order_;  // empty when the rows are in order
};

template <std::size_t Columns>
class ColumnPlot : public PlotData {
 public:
  ColumnPlot(std::shared_ptr<const PlottedRows<Columns>> rows, std::size_t column)
      : rows_(std::move(rows)), column_(column) {}
  std::size_t size() const override { return rows_->size(); }
  double x(std::size_t index) const override { return rows_->moment(index); }
  double y(std::size_t index) const override { return rows_->value(index, column_); }

 private:
  std::shared_ptr<const PlottedRows<Columns>> rows_;
  std::size_t column_;
};

}  // namespace zephon
