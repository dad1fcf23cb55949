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
    {"nothing", kLong, {}, {}},
    {"30 A", kShort, {{kMaxAmps, 30}}, {}},
    {"above 30 A", kShort, {{kMaxAmps, 30.001}}, {3, 29}},
    {"above 30 A at 95 %", kShort, {{kMaxAmps, 31}, {kMinVolts, 0.95}}, {3, 29}},
    {"above 30 A below 95 %", kShort, {{kMaxAmps, 31}, {kMinVolts, 0.9499}}, {17, 22, 28}},
    {"both", kShort, {{kMaxAmps, 31, 2}, {kMinVolts, 0.94}}, {3, 17, 22, 28, 29}},
    {"the last row takes no part", kShort, {{kMaxAmps, 99, 1, 101}}, {}},
    {"twice the mean at 90 %", 22, {{kMaxAmps, 0, 20}, {kMaxAmps, 6, 10}, {kMinVolts, 0.9, 1, 0}}, {}},
    {"a peak at 90 %", kShort, {{kMaxAmps, 20}, {kMinVolts, 0.9}}, {}},
    {"a peak below 90 %", kShort, {{kMaxAmps, 20}, {kMinVolts, 0.8999}}, {17, 22, 28}},
    {"no peak below 90 %", kShort, {{kMaxAmps, 10}, {kMinVolts, 0.8999}}, {}},
    {"current rising", kLong, {ramp(kMaxAmps, 20, -0.06)}, {4, 30, 31}},
    {"current falling", kLong, {ramp(kMaxAmps, 5, 0.06)}, {5, 9, 14}},
    {"current flat", kLong, {ramp(kMaxAmps, 5, 0.04)}, {}},
    {"too few days for a trend", 6 * 48 + 1, {ramp(kMaxAmps, 5, 2)}, {}},
    {"days enough", 7 * 48 + 1, {ramp(kMaxAmps, 5, 2)}, {5, 9, 14}},

    {"two low minimums of 40 V", kShort, {{kMinVolts, 0, 2}}, {}},
    {"three outages", kShort, {{kMinVolts, 0, 3}}, {19}},
    {"outages at unsteady intervals", kShort, {{kMinVolts, 0, 5, 0, 20}}, {}},
    {"share of low minimums 5 %", kShort, {{kMinVolts, 0.9499, 5}}, {}},
    {"share of low minimums 6 %", kShort, {{kMinVolts, 0.9499, 6}}, {13, 17, 22, 33}},
    {"share of minimums of 95 %", kShort, {{kMinVolts, 0.95, 99}}, {}},
    {"minimum rising", kLong, {ramp(kMinVolts, 1, -0.06)}, {14, 18}},
    {"minimum falling", kLong, {ramp(kMinVolts, 1, 0.06)}, {13, 16, 17}},

    {"two high maximums", kShort, {{kMaxVolts, 1.0501, 2}}, {}},
    {"three high maximums", kShort, {{kMaxVolts, 1.0501, 3}}, {11}},
    {"maximums of 105 %", kShort, {{kMaxVolts, 1.05, 99}}, {}},
    {"share of high maximums 5 %", kShort, {{kMaxVolts, 1.0501, 5}}, {11}},
    {"share of high maximums 6 %", kShort, {{kMaxVolts, 1.0501, 6}}, {11, 12, 13, 34}},
    {"maximum rising", kLong, {ramp(kMaxVolts, 1, -0.06)}, {12, 13}},
    {"maximum falling", kLong, {ramp(kMaxVolts, 1, 0.06)}, {14}},

    {"average rising", kLong, {ramp(kAvgVolts, 1, -0.06)}, {13, 14, 35}},
    {"average falling", kLong, {ramp(kAvgVolts, 1, 0.06)}, {13, 16}},
    {"average high in 1 %", kShort, {{kAvgVolts, 1.0501}}, {}},
    {"average high in 2 %", kShort, {{kAvgVolts, 1.0501, 2}}, {12, 13}},
    {"average of 105 %", kShort, {{kAvgVolts, 1.05, 9}}, {}},
    {"average low in 1 %", kShort, {{kAvgVolts, 0.9499}}, {}},
    {"average low in 2 %", kShort, {{kAvgVolts, 0.9499, 2}}, {13, 22}},
    {"average of 95 %", kShort, {{kAvgVolts, 0.95, 9}}, {}},
    {"average of 0", kShort, {{kAvgVolts, 0, 9}}, {}},

    {"6000 W", kShort, {{kMaxWatts, 6000}}, {}},
    {"above 6000 W at 95 %", kShort, {{kMaxWatts, 6000.1}, {kMinVolts, 0.95}}, {3, 29}},
    {"above 6000 W below 95 %", kShort, {{kMaxWatts, 6001}, {kMinVolts, 0.9499}}, {17, 22, 28}},
    {"maximum power rising", kLong, {ramp(kMaxWatts, 800, -1)}, {4, 30, 31}},
    {"maximum power falling", kLong, {ramp(kMaxWatts, 800, 1)}, {5, 9, 14}},
    {"peaks of power", kLong, {{kAvgWatts, 2000, 8, 10, 48}}, {53}},
    {"average power rising", kLong, {ramp(kAvgWatts, 800, -1)}, {4, 30, 31, 36}},
    {"average power falling", kLong, {ramp(kAvgWatts, 800, 1)}, {9, 18, 37}},
};

// At 208 V a 240 V device takes every half hour for a minimum, on all days that count.
std::set<int> expected(const Case& one, const Supply& supply) {
  std::set<int> slots = one.found;
  if (supply.rated < 0.95 * supply.nominal && one.rows > kShort) slots.insert({32, 54});
  return slots;
}

TEST(ExpertHist, RaisesWhatEachRuleSaysAtItsBounds) {
  for (const Supply& supply : kSupplies) {
    for (const Case& one : kCases) {
      const Logs logs = history(one.rows, supply.rated, one.changes);
      const Analysis found = expertHist(logs, device(supply.nominal, supply.rated));
      EXPECT_EQ(raised(found), expected(one, supply)) << one.what << " at " << supply.rated;
    }
  }
}

TEST(ExpertHist, TakesBoundsInVoltsAsTheyAre) {
  for (const auto& [volts, slots] : {std::pair(40.0, std::set<int>{}), {39.99, {19}}}) {
    const Logs logs = history(kShort, 120, {{kMinVolts, volts / 120, 3}});
    EXPECT_EQ(raised(expertHist(logs, device())), slots) << volts;
  }
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
  const std::vector<Cells> load = {{kMaxAmps, 31, 9}, {kMaxWatts, 7000, 9}};
  for (const std::size_t rows : {0u, 1u})
    EXPECT_EQ(raised(expertHist(history(rows, 120, load), device())), std::set<int>{});
  // One record: shares divide by 0, before the rules of power.
  EXPECT_EQ(
      raised(expertHist(history(2, 120, {{kMaxAmps, 31}, {kMaxWatts, 7000}, {kMinVolts, 0.9}}), device())),
      (std::set<int>{17, 22, 28}));
  EXPECT_EQ(raised(expertHist(history(3, 120, load), device())), (std::set<int>{3, 29}));
  const struct {
    std::size_t column, row;
    std::set<int> found;
  } rows[] = {{kMaxAmps, 0, {}},
              {kMaxAmps, 20, {3, 29}},       // the rows before it have been looked at
              {kMinVolts, 20, {3, 11, 29}},  // only a high current has its voltage looked at: rule 4 fails
              {kMaxVolts, 20, {3, 29}},
              {kAvgVolts, 20, {3, 11, 29}},
              {kMaxWatts, 5, {3, 11, 29}}};
  for (const auto& row : rows) {
    Logs logs = history(kShort, 120, {{kMaxAmps, 31, 9}, {kMaxVolts, 1.06, 4}});
    logs.histData[row.row][row.column] = std::numeric_limits<double>::quiet_NaN();
    std::set<int> slots = row.found;
    if (row.column == kMinVolts) slots.erase(11);
    EXPECT_EQ(raised(expertHist(logs, device())), slots) << &row - rows;
  }
}

}  // namespace
}  // namespace zephon
