#include "expert/peak_usage.h"

#include <gtest/gtest.h>

#include <limits>

#include "expert/tables.h"

namespace zephon {
namespace {

using testing_support::Cells;
using testing_support::history;
using Times = std::array<std::string, 3>;

// Peaks of power of 3000 W on each of so many days, at half hours of the day.
std::vector<Cells> peaks(std::initializer_list<std::size_t> halfHours, std::size_t days) {
  std::vector<Cells> all;
  for (const std::size_t h : halfHours) all.push_back({6, 3000, days, h, 48});
  return all;
}

TEST(GetPeakUsage, TellsTheLastHalfHourOfARunOnManyDays) {
  const std::tuple<std::size_t, std::vector<Cells>, Times> rows[] = {
      {10, {}, {}},
      {10, peaks({9, 10, 30}, 10), {"05:00", "15:00", ""}},
      {10, peaks({9, 20, 30, 40}, 10), {"04:30", "10:00", "15:00"}},  // the fourth is dropped
      {10, peaks({0}, 10), {}},                                       // half hour 0 is none
      {10, peaks({47}, 10), {"23:30", "", ""}},
      {10, peaks({20}, 2), {}},  // 2 of 10 days are not more than a quarter
      {10, peaks({20}, 3), {"10:00", "", ""}},
      {8, peaks({20}, 2), {}},  // exactly a quarter
      {3, peaks({20}, 1), {}},  // a single day
      {2, peaks({20}, 2), {}},  // of which only one counts
      {10, {{6, 3000, 3, 20, 48}, {6, 3000, 3, 20 + 3 * 48, 49}}, {"10:00", "", ""}},
      {10, {{6, 3000, 9, 12, 50}}, {}},                 // an hour later each day
      {39, peaks({20}, 10), {"10:00", "", ""}},         // just above a quarter
      {10, {{6, 460, 480}, {6, 940, 10, 20, 48}}, {}},  // twice the mean of its day
      {10, {{6, 460, 480}, {6, 941, 10, 20, 48}}, {"10:00", "", ""}},
      // A day without a run reads as half hour 0, which is near half hour 1.
      {10, peaks({1}, 1), {"00:30", "", ""}},
      {10, peaks({2}, 1), {}}};
  for (const auto& [days, changes, times] : rows) {
    const PeakUsage usage = getPeakUsage(history(days * 48 + 1, 120, changes), "hist", 6, 120);
    EXPECT_EQ(usage.times, times) << days;
  }
}

TEST(GetPeakUsage, OfAVoltageLooksBelowTheRating) {
  Logs logs = history(5 * 48 + 1, 120, {{10, 0.95, 4, 7, 48}, {10, 0.9499, 4, 22, 48}, {10, 0.9, 4, 23, 48}});
  const PeakUsage usage = getPeakUsage(logs, "hist", 10, 120);
  EXPECT_EQ(usage.times, (Times{"11:30", "", ""}));
  EXPECT_EQ(usage.rows, (RowNumbers{23, 71, 119, 167}));
  EXPECT_EQ(getPeakUsage(logs, "hist", 10, 100).times, Times{});
  EXPECT_EQ(getPeakUsage(logs, "Hist", 10, 120).times, Times{});
  EXPECT_EQ(getPeakUsage(logs, "hist", 12, 120).times, Times{});
  logs.histData[60][10] = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(getPeakUsage(logs, "hist", 10, 120).times, Times{});
}

TEST(TimeList, JoinsWhatThereIs) {
  EXPECT_EQ(timeList({"05:15", "", ""}), "05:15.");
  EXPECT_EQ(timeList({"05:15", "14:45", ""}), "05:15 and 14:45.");
  EXPECT_EQ(timeList({"05:15", "14:45", "22:15"}), "05:15, 14:45, and 22:15.");
  EXPECT_EQ(timeList({"05:15", "", "22:45"}), "05:15, , and 22:45.");
}

}  // namespace
}  // namespace zephon
