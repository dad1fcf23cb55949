#include "expert/history_analysis.h"

#include <gtest/gtest.h>

#include <limits>

#include "expert/tables.h"

namespace zephon {
namespace {

using testing_support::Cells;
using testing_support::device;
using testing_support::history;
using testing_support::raised;
using testing_support::ramp;

constexpr std::size_t kAvgWatts = 6, kMaxWatts = 7, kAvgVolts = 8, kMaxVolts = 9, kMinVolts = 10,
                      kMaxAmps = 11;
constexpr std::size_t kShort = 102;        // rows: U - 1 is 100
constexpr std::size_t kLong = 8 * 48 + 1;  // eight days: long enough for trends

struct Supply {
  int nominal, rated;
};
const Supply kSupplies[] = {{120, 120}, {240, 208}, {240, 230}, {240, 240}, {120, 100}};

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
    {"both", kShort, {{kMaxAmps, 31, 2}, {kMinVolts, 0.94}}, {3, 17, 22, 28, 29}},
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

// At 208 V a 240 V device takes every half hour for a minimum, on all days that count.
void expectFound(const Supply& supply, std::size_t rows, const std::vector<Cells>& changes,
                 std::set<int> slots) {
  if (supply.rated < 0.95 * supply.nominal && rows > kShort) slots.insert({32, 54});
  const Analysis found =
      expertHist(history(rows, supply.rated, changes), device(supply.nominal, supply.rated));
  EXPECT_EQ(raised(found), slots) << " at " << supply.rated;
}

TEST(ExpertHist, RaisesWhatEachRuleSaysAtItsBounds) {
  for (const Supply& supply : kSupplies) {
    for (const Case& one : kCases) {
      SCOPED_TRACE(one.what);
      expectFound(supply, one.rows, one.changes, one.found);
    }
    for (const auto& [rows, changes] : kQuiet) expectFound(supply, rows, changes, {});
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

TEST(ExpertHist, TellsTheTimesOfPeaks) {
  const std::vector<Cells> changes = {
      {kMinVolts, 0.94, 8, 11, 48}, {kAvgWatts, 3000, 8, 29, 48}, {kAvgWatts, 3000, 8, 10, 48}};
  const Analysis found = expertHist(history(kLong, 120, changes), device());
  EXPECT_EQ(raised(found), (std::set<int>{32, 53, 54}));
  EXPECT_EQ(found.texts.at(54), "Voltage minimums occur regularly on most days around 05:30.");
  EXPECT_EQ(found.texts.at(53), "Power usage peaks occur regularly on most days around 05:00 and 14:30.");
}

TEST(ExpertHist, TellsTheRowsBehindEachFinding) {
  const std::vector<Cells> changes = {
      {kMaxAmps, 31, 3, 20, 10}, {kMinVolts, 0.8, 2, 30}, {kMaxWatts, 7000, 1, 5}};
  const Analysis found = expertHist(history(kShort, 120, changes), device());
  EXPECT_EQ(found.rows[29], (RowNumbers{5, 20, 40}));
  EXPECT_EQ(found.rows[28], RowNumbers{30});
  EXPECT_EQ(found.rows[33], RowNumbers{});
  const Analysis trend = expertHist(history(kLong, 120, {ramp(kMaxAmps, 5, 1)}), device());
  EXPECT_EQ(trend.rows[9].size(), kLong - 1);
}

TEST(ExpertHist, EndsWithWhatItHasAtTheRuleThatFails) {
  const std::vector<Cells> load = {{kMaxAmps, 31, 9}, {kMaxWatts, 7000, 9}, {kMinVolts, 0.9, 9}};
  const std::pair<std::size_t, std::set<int>> lengths[] = {
      {0, {}}, {1, {}}, {2, {17, 22, 28}}};  // shares of one record divide by 0, before the rules of power
  for (const auto& [rows, found] : lengths)
    EXPECT_EQ(raised(expertHist(history(rows, 120, load), device())), found) << rows;
  // The rows before a broken one have been looked at; only a high current has its voltage looked at.
  const std::tuple<std::size_t, std::size_t, std::set<int>> broken[] = {
      {kMaxAmps, 0, {}},        {kMaxAmps, 20, {3, 29}},      {kMinVolts, 20, {3, 29}},
      {kMaxVolts, 20, {3, 29}}, {kAvgVolts, 20, {3, 11, 29}}, {kMaxWatts, 5, {3, 11, 29}}};
  for (const auto& [column, row, found] : broken) {
    Logs logs = history(kShort, 120, {{kMaxAmps, 31, 9}, {kMaxVolts, 1.06, 4}});
    logs.histData[row][column] = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(raised(expertHist(logs, device())), found) << column << ' ' << row;
  }
}

}  // namespace
}  // namespace zephon
