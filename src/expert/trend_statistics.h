#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "expert/intervals.h"
#include "form/logs.h"

namespace zephon {

// What carries the trend decisions of the expert analysis. A kind tells the log: "hist", "chart" or
// "timestamp". A failure (no rows, a division by zero, a value that is no number) gives the neutral result.

inline constexpr std::string_view kHist = "hist";
inline constexpr std::string_view kChart = "chart";
inline constexpr std::string_view kTimestamp = "timestamp";

using Series = std::vector<double>;

// A column of a log as a smoothed series; {0} for an unknown kind and after a failure. U is the largest row.
//   chart      of `col1`, the mean of each three rows on end: U - 1 elements
//   hist       of `col1`, the means of days of 48 rows, days 0 to U / 48 - 2 rounded, the last day first;
//              then the mean of each three on end
//   timestamp  how many rows below U have event code `col1` or `col2` on each day from the date of row U to
//              that of row 0; then a third of each three days on end, of fewer at the end
Series movingMean(const Logs& logs, std::string_view kind, int col1, int col2);

// The trend of a series by its least-squares slope against its index: 1 rising, -1 falling, 0 flat. A slope
// up to 0.05 either way, 0.01 on the second line (`modelLine` 1), is flat; so is a chart's whose mean lies
// within 1 of 0, and a series of one.
int getSlope(std::string_view kind, std::span<const double> series, int modelLine);

// True when there are two intervals at least, more than a hundredth of U - 1, and they have no trend.
bool isSteady(std::string_view kind, const Intervals& intervals, std::size_t largestRow, int modelLine);

// True when the events of two codes, the same one twice for one, come at steady intervals. The row U is none
// of them.
bool isRegular(const Logs& logs, std::string_view kind, int code1, int code2, int modelLine);

}  // namespace zephon
