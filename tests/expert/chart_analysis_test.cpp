#include "expert/chart_analysis.h"

#include <gtest/gtest.h>

#include <limits>

#include "expert/tables.h"

namespace zephon {
namespace {

using testing_support::Cells;
using testing_support::chart;
using testing_support::device;
using testing_support::raised;
using testing_support::ramp;

constexpr std::size_t kTime = 0, kVolts = 1, kAmps = 2, kWatts = 3, kNeutral = 4, kHertz = 5, kCrest = 7;
constexpr std::size_t kRows = 102;  // U - 1 is 100

struct Case {
  const char* what;
  std::vector<Cells> changes;
  std::set<int> found;      // of the rules of both lines
  std::set<int> firstLine;  // and what those of the first line add
};

// Single rows are far enough from each other for trends to stay flat.
const Case kCases[] = {
    {"nothing", {}, {}, {}},
    {"105 %", {{kVolts, 1.05, 200}}, {}, {}},
    {"two above 105 %", {{kVolts, 1.0501, 2, 40}}, {}, {}},
    {"three above 105 %", {{kVolts, 1.0501, 3, 40}}, {11, 12, 13}, {}},
    {"three outages", {{kVolts, 0, 3, 49}}, {13, 19, 22, 32}, {}},
    {"two outages", {{kVolts, 0, 2, 50}}, {}, {}},
    {"voltage rising", {ramp(kVolts, 0.99, 0.06)}, {13, 35}, {}},
    {"voltage falling", {ramp(kVolts, 1.01, -0.06)}, {13, 16}, {}},
    {"three sags", {{kVolts, 0.9, 3, 49}}, {32}, {}},
    {"two sags", {{kVolts, 0.9, 2, 50}}, {}, {}},
    {"sags of 95 % of the mean", {{kVolts, 0.952, 3, 49}}, {}, {}},

    {"30 A", {{kAmps, 30}}, {}, {}},
    {"above 30 A", {{kAmps, 30.01}}, {}, {3, 29, 38}},
    {"above 30 A at 95 %", {{kAmps, 31, 1, 50}, {kVolts, 0.95, 1, 50}}, {}, {3, 29, 38}},
    {"above 30 A below 95 %", {{kAmps, 31, 1, 50}, {kVolts, 0.9499, 1, 50}}, {}, {17, 22, 28}},
    {"above 2.6 A in 80 %", {{kAmps, 2.61, 80}}, {}, {}},
    {"above 2.6 A in 81 %", {{kAmps, 2.61, 81, 10}}, {}, {39}},
    {"2.6 A", {{kAmps, 2.6, 100}}, {}, {40}},
    {"above 1.6 A in 81 %", {{kAmps, 1.601, 81, 10}}, {}, {40}},
    {"above 1.6 A in 80 %", {{kAmps, 1.601, 80, 10}}, {}, {}},
    {"1.6 A", {{kAmps, 1.6, 100}}, {}, {}},
    {"current rising", {ramp(kAmps, 3, 0.06)}, {}, {4, 30, 31, 39}},
    {"current falling", {ramp(kAmps, 9, -0.06)}, {}, {5, 37, 39, 41}},
    {"current falling below 1 A", {ramp(kAmps, 3.9, -0.06)}, {}, {}},

    {"6000 W", {{kWatts, 6000, 1, 50}}, {}, {}},
    {"above 6000 W at 95 %", {{kWatts, 6001, 1, 50}, {kVolts, 0.95, 1, 50}}, {}, {3, 29, 38}},
    {"above 6000 W below 95 %", {{kWatts, 6001, 1, 50}, {kVolts, 0.9499, 1, 50}}, {}, {17, 22, 28}},
    {"above 300 W", {{kWatts, 300.1, 200}}, {}, {39}},
    {"300 W", {{kWatts, 300, 200}}, {}, {40}},
    {"200 W", {{kWatts, 200, 200}}, {}, {}},
    {"power rising", {ramp(kWatts, 50, 0.06)}, {}, {4, 30, 31, 36}},
    {"power falling", {ramp(kWatts, 50, -0.06)}, {}, {5, 37, 41}},

    {"60.99 Hz", {{kHertz, 61}, {kHertz, 59, 1, 9}}, {}, {}},
    {"above 61 Hz", {{kHertz, 61.01}}, {}, {46, 55}},
    {"below 59 Hz", {{kHertz, 58.99}}, {}, {46, 55}},
    {"odd without a voltage", {{kHertz, 40, 1, 50}, {kVolts, 0, 1, 50}}, {}, {}},
    {"50 Hz", {{kHertz, 50, 200}}, {}, {}},
    {"a mean of 53.9 Hz", {{kHertz, 53.9, 200}}, {}, {46, 55}},
    {"a mean of 46 Hz", {{kHertz, 46, 200}}, {}, {46, 55}},

    {"crest of 1.4 and 1.43", {{kCrest, 1.4, 9}, {kCrest, 1.43, 9, 50}}, {}, {}},
    {"crest below 1.4 in 5 %", {{kCrest, 1.3999, 5}}, {}, {}},
    {"crest below 1.4 in 4 %", {{kCrest, 1.3999, 4}}, {}, {17, 49}},
    {"crest below 1.4 in 6 %", {{kCrest, 1.3999, 6}}, {}, {17, 48}},
    {"crest above 1.43 in 5 %", {{kCrest, 1.4301, 5}}, {}, {}},
    {"crest above 1.43 in 4 %", {{kCrest, 1.4301, 4}}, {}, {51, 52}},
    {"crest above 1.43 in 6 %", {{kCrest, 1.4301, 6}}, {}, {50, 51}},
    {"square wave", {{kCrest, 1, 4}}, {}, {17, 47, 49}},
    {"crest of 0.96 and 1.04", {{kCrest, 0.96, 3}, {kCrest, 1.04, 3, 50}}, {}, {17, 48}},
};

struct Supply {
  int nominal, rated;
};
const Supply kSupplies[] = {{120, 120}, {240, 208}, {240, 230}, {240, 240}};

TEST(ExpertChart, RaisesWhatEachRuleSaysAtItsBounds) {
  for (const Supply& supply : kSupplies) {
    for (const Case& one : kCases) {
      const Logs logs = chart(kRows, supply.rated, one.changes);
      std::set<int> found = one.found;
      const auto second = expertChart(logs, device(supply.nominal, supply.rated, 1));
      EXPECT_EQ(raised(second), found) << one.what << " at " << supply.rated << ", second line";
      found.insert(one.firstLine.begin(), one.firstLine.end());
      const auto first = expertChart(logs, device(supply.nominal, supply.rated));
      EXPECT_EQ(raised(first), found) << one.what << " at " << supply.rated;
    }
  }
}

TEST(ExpertChart, LooksAtTheNeutralOfA120VDeviceThatMeasuresIt) {
  const struct {
    std::size_t count;
    double volts, others;
    std::set<int> found;
  } rows[] = {{9, 5, 0.5, {}},
              {4, 5.01, 0.5, {44, 45}},
              {5, 5.01, 0.5, {}},
              {6, 5.01, 0.5, {22, 42, 43}},
              {0, 0, 2.0, {}},
              {0, 0, 2.01, {22, 42, 43, 45}},
              {5, 6, 1.9, {22, 42, 43, 45}},
              {4, 9, 1.9, {22, 42, 43, 44, 45}}};
  const struct {
    int nominal, modelLine;
    const char* firmware;
    bool looks;
  } devices[] = {{120, 0, "1.KD1", true}, {240, 0, "1.KD1", false}, {120, 1, "2.00", true},
                 {120, 1, "2.01", true},  {120, 1, "1*99", false},  {120, 1, "1.99", false},
                 {240, 1, "2.00", false}};
  for (const auto& row : rows) {
    const Logs logs = chart(kRows, 120, {{kNeutral, row.others, 101}, {kNeutral, row.volts, row.count, 20}});
    for (const auto& one : devices) {
      const LoggedDevice logged = {one.modelLine, one.firmware, one.nominal, 120, 0};
      EXPECT_EQ(raised(expertChart(logs, logged)), one.looks ? row.found : std::set<int>{})
          << &row - rows << ' ' << one.firmware;
    }
  }
}

TEST(ExpertChart, TellsTheShareOfASquareWave) {
  const auto textWith = [](const std::vector<Cells>& changes) {
    return expertChart(chart(kRows, 120, changes), device()).texts.at(47);
  };
  EXPECT_EQ(textWith({}), "Equipment was probably powered by a UPS with square wave output.");
  EXPECT_EQ(textWith({{kCrest, 1.2, 9}}), textWith({}));
  EXPECT_EQ(textWith({{kCrest, 1, 3}}),
            "Equipment was probably powered by a UPS with square wave output 3.00% of the data acquisition "
            "period.");
}

TEST(ExpertChart, TellsTheRowsBehindEachFinding) {
  const Analysis found = expertChart(
      chart(kRows, 120, {{kAmps, 31, 2, 40, 30}, {kWatts, 7000, 1, 12}, {kHertz, 62, 2, 5}}), device());
  EXPECT_EQ(found.rows[38], (RowNumbers{12, 40, 70}));
  EXPECT_EQ(found.rows[46], (RowNumbers{5, 6}));
}

// Moments of 0 have no intervals, and those of more than a day a trend.
TEST(ExpertChart, CountsByTheMomentsOfItsRows) {
  Logs logs = chart(kRows, 120, {{kVolts, 1.06, 3, 49}});
  logs.chartData[50][kTime] = 0;
  EXPECT_EQ(raised(expertChart(logs, device())), std::set<int>{});
  logs.chartData[50][kTime] = logs.chartData[49][kTime] + 5;
  logs.chartData[51][kTime] = logs.chartData[49][kTime] + 9;
  EXPECT_EQ(raised(expertChart(logs, device())), (std::set<int>{12, 13}));
}

TEST(ExpertChart, EndsWithWhatItHasAtTheRuleThatFails) {
  for (const std::size_t rows : {0u, 1u})
    EXPECT_EQ(raised(expertChart(chart(rows, 120, {{kAmps, 40, 9}}), device())), std::set<int>{});
  // One finished row: the share of current divides by 0, before the frequency.
  EXPECT_EQ(raised(expertChart(chart(2, 120, {{kAmps, 40}, {kHertz, 40}}), device())),
            (std::set<int>{3, 29, 38}));
  EXPECT_EQ(raised(expertChart(chart(3, 120, {{kAmps, 40}, {kHertz, 40}}), device())),
            (std::set<int>{3, 29, 38, 39, 46, 55}));
  const struct {
    std::size_t column, row;
    std::set<int> found;
  } rows[] = {{kVolts, 0, {}},
              {kTime, 41, {}},
              {kTime, 3, {3, 11, 12, 13, 29, 38, 46, 55}},
              {kAmps, 0, {11, 12, 13}},
              {kAmps, 9, {3, 11, 12, 13, 29, 38}},
              {kWatts, 60, {3, 11, 12, 13, 29, 38}},
              {kHertz, 60, {3, 11, 12, 13, 29, 38}}};
  for (const auto& row : rows) {
    Logs logs = chart(kRows, 120, {{kVolts, 1.06, 3, 40}, {kAmps, 40, 1, 5}, {kHertz, 65, 1, 50}});
    logs.chartData[row.row][row.column] = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(raised(expertChart(logs, device())), row.found) << &row - rows;
  }
}

}  // namespace
}  // namespace zephon
