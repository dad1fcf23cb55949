#include "expert/history_analysis.h"

#include <gtest/gtest.h>

#include <limits>

#include "expert/peak_usage.h"
#include "expert/tables.h"

namespace zephon {
namespace {

using namespace testing_support;

constexpr std::size_t kAvgWatts = 6, kMaxWatts = 7, kAvgVolts = 8, kMaxVolts = 9, kMinVolts = 10,
                      kMaxAmps = 11;
constexpr std::size_t kShort = 102;        // rows: U - 1 is 100
constexpr std::size_t kLong = 8 * 48 + 1;  // eight days: long enough for trends

struct Case {
  const char* what;
  std::size_t rows;
  std::vector<Cells> changes;
  std::set<int> found;
};

// Intervals of one half hour, {1/48, 1/48, ..., 0}, are flat; they count from three on.
const Case kCases[] = {
    {"above 30 A", kShort, {{kMaxAmps, 30.001}}, {3, 29}},
    {"above 30 A at 95 %", kShort, {{kMaxAmps, 31}, {kMinVolts, 0.95}}, {3, 29}},
    {"above 30 A below 95 %", kShort, {{kMaxAmps, 31}, {kMinVolts, 0.9499}}, {17, 22, 28}},
    {"a peak below 90 %", kShort, {{kMaxAmps, 20}, {kMinVolts, 0.8999}}, {17, 22, 28}},
    {"current rising", kLong, {ramp(kMaxAmps, 20, -0.06)}, {4, 30, 31}},
    {"current falling", kLong, {ramp(kMaxAmps, 5, 0.06)}, {5, 9, 14}},
    {"days enough", 7 * 48 + 1, {ramp(kMaxAmps, 5, 2)}, {5, 9, 14}},

    {"three outages", kShort, {{kMinVolts, 0, 3}}, {19}},
    {"share of low minimums 6 %", kShort, {{kMinVolts, 0.9499, 6}}, {13, 17, 22, 33}},
    {"minimum rising", kLong, {ramp(kMinVolts, 1, -0.06)}, {14, 18}},
    {"minimum falling", kLong, {ramp(kMinVolts, 1, 0.06)}, {13, 16, 17}},

    {"three high maximums", kShort, {{kMaxVolts, 1.0501, 3}}, {11}},
    {"share of high maximums 5 %", kShort, {{kMaxVolts, 1.0501, 5}}, {11}},
    {"share of high maximums 6 %", kShort, {{kMaxVolts, 1.0501, 6}}, {11, 12, 13, 34}},
    {"maximum rising", kLong, {ramp(kMaxVolts, 1, -0.06)}, {12, 13}},
    {"maximum falling", kLong, {ramp(kMaxVolts, 1, 0.06)}, {14}},

    {"average rising", kLong, {ramp(kAvgVolts, 1, -0.06)}, {13, 14, 35}},
    {"average falling", kLong, {ramp(kAvgVolts, 1, 0.06)}, {13, 16}},
    {"average high in 2 %", kShort, {{kAvgVolts, 1.0501, 2}}, {12, 13}},
    {"average low in 2 %", kShort, {{kAvgVolts, 0.9499, 2}}, {13, 22}},

    {"above 6000 W at 95 %", kShort, {{kMaxWatts, 6000.1}, {kMinVolts, 0.95}}, {3, 29}},
    {"above 6000 W below 95 %", kShort, {{kMaxWatts, 6001}, {kMinVolts, 0.9499}}, {17, 22, 28}},
    {"maximum power rising", kLong, {ramp(kMaxWatts, 800, -1)}, {4, 30, 31}},
    {"maximum power falling", kLong, {ramp(kMaxWatts, 800, 1)}, {5, 9, 14}},
    {"peaks of power", kLong, {{kAvgWatts, 2000, 8, 10, 48}}, {53}},
    {"average power rising", kLong, {ramp(kAvgWatts, 800, -1)}, {4, 30, 31, 36}},
    {"average power falling", kLong, {ramp(kAvgWatts, 800, 1)}, {9, 18, 37}},
};

// What raises nothing: values at their bounds, and those beyond them too seldom or in too small a share.
const std::pair<std::size_t, std::vector<Cells>> kQuiet[] = {
    {kLong, {}},
    {kShort, {{kMaxAmps, 30}, {kMaxWatts, 6000}, {kMinVolts, 0.95, 99}, {kMaxVolts, 1.05, 99}}},
    {kShort, {{kMaxAmps, 20}, {kMinVolts, 0.9}, {kMaxVolts, 1.0501, 2}, {kAvgVolts, 1.0501}}},
    {kShort, {{kMaxAmps, 10}, {kMinVolts, 0.8999}, {kAvgVolts, 0.9499}, {kMaxAmps, 99, 1, 101}}},
    {kShort, {{kMinVolts, 0, 2}, {kAvgVolts, 1.05, 9}}},
    {kShort, {{kMinVolts, 0.9499, 5}, {kAvgVolts, 0.95, 9}}},
    {kShort, {{kMinVolts, 0, 5, 0, 20}, {kAvgVolts, 0, 9}}},               // outages at unsteady intervals
    {22, {{kMaxAmps, 0, 20}, {kMaxAmps, 6, 10}, {kMinVolts, 0.9, 1, 0}}},  // above twice the mean at 90 %
    {101, {{kMaxAmps, 0, 100}, {kMaxAmps, 6, 50}, {kMinVolts, 0.89}}},     // twice the mean
    {kLong, {{kMinVolts, 0, 3, 164}, {kMaxVolts, 1.0501, 3, 164}}},        // steady, but seldom
    {kLong, {ramp(kMaxAmps, 5, 0.04)}},
    {6 * 48 + 1, {ramp(kMaxAmps, 5, 2)}},  // too few days for a trend
};

// Far below its rating a device takes every half hour for a minimum, on all days that count.
TEST(ExpertHist, RaisesWhatEachRuleSaysAtItsBounds) {
  for (const auto& volts : {std::pair{120, 120}, {240, 208}, {240, 230}, {240, 240}, {120, 100}}) {
    const auto nominal = volts.first, rated = volts.second;
    const auto found = [&](std::size_t rows, const std::vector<Cells>& changes) {
      std::set<int> slots = raised(expertHist(history(rows, rated, changes), device(nominal, rated)));
      if (rated < 0.95 * nominal && rows > kShort) {
        EXPECT_EQ(slots.erase(32) + slots.erase(54), 2u);
      }
      return slots;
    };
    for (const Case& one : kCases) EXPECT_EQ(found(one.rows, one.changes), one.found) << one.what << rated;
    for (const auto& [rows, changes] : kQuiet) EXPECT_EQ(found(rows, changes), std::set<int>{}) << rated;
  }
}

TEST(ExpertHist, TakesBoundsInVoltsAsTheyAre) {
  for (const auto& [volts, slots] : {std::pair(40.0, std::set<int>{}), {39.99, {19}}}) {
    const Logs logs = history(kShort, 120, {{kMinVolts, volts / 120, 3}});
    EXPECT_EQ(raised(expertHist(logs, device())), slots) << volts;
  }
}

TEST(ExpertHist, SeesSmallerTrendsOnTheSecondLine) {
  const Logs logs = history(kLong, 120, {ramp(kMaxAmps, 5, 0.02)});
  EXPECT_EQ(raised(expertHist(logs, device(120, 120, 1))), (std::set<int>{5, 9, 14}));
  EXPECT_EQ(raised(expertHist(logs, device())), std::set<int>{});
}

TEST(ExpertHist, TellsTheTimesOfPeaksAndTheRowsBehindEachFinding) {
  const std::vector<Cells> peaks = {
      {kMinVolts, 0.94, 8, 11, 48}, {kAvgWatts, 3000, 8, 29, 48}, {kAvgWatts, 3000, 8, 10, 48}};
  const Analysis times = expertHist(history(kLong, 120, peaks), device());
  EXPECT_EQ(times.texts.at(54), "Voltage minimums occur regularly on most days around 05:30.");
  EXPECT_EQ(times.texts.at(53), "Power usage peaks occur regularly on most days around 05:00 and 14:30.");
  const std::vector<Cells> load = {
      {kMaxAmps, 31, 3, 20, 10}, {kMinVolts, 0.8, 2, 30}, {kMaxWatts, 7000, 1, 5}};
  const Analysis found = expertHist(history(kShort, 120, load), device());
  EXPECT_EQ(found.rows[29], (RowNumbers{5, 20, 40}));
  EXPECT_EQ(found.rows[28], RowNumbers{30});
}

TEST(ExpertHist, EndsWithWhatItHasAtTheRuleThatFails) {
  const std::vector<Cells> load = {{kMaxAmps, 31, 9}, {kMaxWatts, 7000, 9}, {kMinVolts, 0.9, 9}};
  for (const std::size_t rows : {0u, 1u})
    EXPECT_TRUE(raised(expertHist(history(rows, 120, load), device())).empty());
  // Shares of one record divide by 0, before the rules of power.
  EXPECT_EQ(raised(expertHist(history(2, 120, load), device())), (std::set<int>{17, 22, 28}));
  // The rows before a broken one have been looked at.
  const std::tuple<std::size_t, std::size_t, std::set<int>> broken[] = {
      {kMaxAmps, 0, {}}, {kMaxAmps, 20, {3, 29}}, {kAvgVolts, 20, {3, 11, 29}}};
  for (const auto& [column, row, found] : broken) {
    Logs logs = history(kShort, 120, {{kMaxAmps, 31, 9}, {kMaxVolts, 1.06, 4}});
    logs.histData[row][column] = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(raised(expertHist(logs, device())), found) << column << ' ' << row;
  }
}

using Times = std::array<std::string, 3>;

// Peaks of power of 3000 W on each of so many days, at half hours of the day.
std::vector<Cells> peaks(std::initializer_list<std::size_t> halfHours, std::size_t days) {
  std::vector<Cells> all;
  for (const std::size_t h : halfHours) all.push_back({6, 3000, days, h, 48});
  return all;
}

TEST(GetPeakUsage, TellsTheLastHalfHourOfARunOnManyDays) {
  const std::tuple<std::size_t, std::vector<Cells>, Times> rows[] = {
      {10, peaks({9, 10, 30}, 10), {"05:00", "15:00", ""}},
      {10, peaks({9, 20, 30, 40}, 10), {"04:30", "10:00", "15:00"}},  // the fourth is dropped
      {10, peaks({0}, 10), {}},                                       // half hour 0 is none
      {10, peaks({20}, 3), {"10:00", "", ""}},
      {8, peaks({20}, 2), {}},  // not more than a quarter
      {3, peaks({20}, 1), {}},  // a single day
      {10, {{6, 3000, 2, 20, 48}, {6, 3000, 1, 21 + 2 * 48}}, {"10:00", "", ""}},
      {10, {{6, 3000, 9, 12, 50}}, {}},                 // an hour later each day
      {10, {{6, 460, 480}, {6, 940, 10, 20, 48}}, {}},  // twice the mean of its day
      {10, {{6, 460, 480}, {6, 941, 10, 20, 48}}, {"10:00", "", ""}},
      {10, peaks({1}, 1), {"00:30", "", ""}}};  // a day without a run reads as half hour 0
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
  logs.histData[60][10] = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(getPeakUsage(logs, "hist", 10, 120).times, Times{});
}

TEST(TimeList, JoinsWhatThereIs) {
  EXPECT_EQ(timeList({"05:15", "14:45", "22:15"}), "05:15, 14:45, and 22:15.");
  EXPECT_EQ(timeList({"05:15", "", "22:45"}), "05:15, , and 22:45.");
}

}  // namespace
}  // namespace zephon
