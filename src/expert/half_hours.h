#pragma once

#include "expert/log_view.h"

namespace zephon {

// The history has a row a half hour: a day is 48 rows, counted from row 0, whatever the clock says.
inline constexpr std::size_t kRowsADay = 48;

// The mean of a column over a day.
inline double dayMean(const LogView& history, std::size_t column, std::size_t day) {
  double sum = 0;
  for (std::size_t i = 0; i < kRowsADay; ++i) sum += history.at(column, day * kRowsADay + i);
  return sum / kRowsADay;
}

}  // namespace zephon
