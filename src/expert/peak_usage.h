#pragma once

#include <array>
#include <string>
#include <string_view>

#include "form/findings.h"
#include "form/logs.h"

namespace zephon {

// Up to three times of day, "hh:mm" of the half hours' starts, at which a quantity of the history peaks on
// many days. A later one can stand without an earlier one.
struct PeakUsage {
  std::array<std::string, 3> times;
  RowNumbers rows;  // the peaks at those times
};

// For column 6 a half hour peaks above twice the mean of its day; for any other column, which then is a
// voltage, below 95 % of what the device is rated for. Days are 48 rows each, up to the last but one. Of each
// day the first three runs of peaks count, each by its last half hour, but not one that ends with row 0. A
// time is told when its run ends within one half hour of it on two days at least and on more than a quarter
// of all days. Empty for any kind but "hist", and for a column with a value that is no number.
PeakUsage getPeakUsage(const Logs& logs, std::string_view kind, int col, int nominalVolts);

// "05:15, 14:45, and 22:15."  "05:15 and 14:45."  "05:15."
std::string timeList(const std::array<std::string, 3>& times);

}  // namespace zephon
