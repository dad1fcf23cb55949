#include "expert/chart_analysis.h"

#include <gtest/gtest.h>

#include <limits>

#include "expert/tables.h"

namespace zephon {
namespace {

using namespace testing_support;

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
    {"three above 105 %", {{kVolts, 1.0501, 3, 40}}, {11, 12, 13}, {}},
    {"three outages", {{kVolts, 0, 3, 49}}, {13, 19, 22, 32}, {}},
    {"voltage rising", {ramp(kVolts, 0.99, 0.06)}, {13, 35}, {}},
    {"voltage falling", {ramp(kVolts, 1.01, -0.06)}, {13, 16}, {}},
    {"three sags", {{kVolts, 0.9, 3, 49}}, {32}, {}},

    {"above 30 A", {{kAmps, 30.01}}, {}, {3, 29, 38}},
    {"above 30 A at 95 %", {{kAmps, 31, 1, 50}, {kVolts, 0.95, 1, 50}}, {}, {3, 29, 38}},
    {"above 30 A below 95 %", {{kAmps, 31, 1, 50}, {kVolts, 0.9499, 1, 50}}, {}, {17, 22, 28}},
    {"above 2.6 A in 81 %", {{kAmps, 2.61, 81, 10}}, {}, {39}},
    {"2.6 A", {{kAmps, 2.6, 100}}, {}, {40}},
    {"above 1.6 A in 81 %", {{kAmps, 1.601, 81, 10}}, {}, {40}},
    {"current rising", {ramp(kAmps, 3, 0.06)}, {}, {4, 30, 31, 39}},
    {"current falling", {ramp(kAmps, 9, -0.06)}, {}, {5, 37, 39, 41}},

    {"above 6000 W at 95 %", {{kWatts, 6001, 1, 50}, {kVolts, 0.95, 1, 50}}, {}, {3, 29, 38}},
    {"above 6000 W below 95 %", {{kWatts, 6001, 1, 50}, {kVolts, 0.9499, 1, 50}}, {}, {17, 22, 28}},
    {"above 300 W in 81 %", {{kWatts, 300, 200}, {kWatts, 300.1, 81, 10}}, {}, {39}},
    {"300 W", {{kWatts, 300, 200}}, {}, {40}},
    {"above 200 W in 81 %", {{kWatts, 200, 200}, {kWatts, 200.1, 81, 10}}, {}, {40}},
    {"power rising", {ramp(kWatts, 50, 0.06)}, {}, {4, 30, 31, 36}},
    {"power falling", {ramp(kWatts, 50, -0.06)}, {}, {5, 37, 41}},

    {"above 61 Hz", {{kHertz, 61.01}}, {}, {46, 55}},
    {"below 59 Hz", {{kHertz, 58.99}}, {}, {46, 55}},

    {"crest below 1.4 in 4 %", {{kCrest, 1.3999, 4}}, {}, {17, 49}},
    {"crest below 1.4 in 6 %", {{kCrest, 1.3999, 6}}, {}, {17, 48}},
    {"crest above 1.43 in 4 %", {{kCrest, 1.4301, 4}}, {}, {51, 52}},
    {"crest above 1.43 in 6 %", {{kCrest, 1.4301, 6}}, {}, {50, 51}},
    {"crest of 0.96 and 1.04", {{kCrest, 0.96, 3}, {kCrest, 1.04, 3, 50}}, {}, {17, 48}},
    {"crest of 0.961", {{kCrest, 0.961, 4}}, {}, {17, 47, 49}},
    {"crest of 1.039", {{kCrest, 1.039, 4}}, {}, {17, 47, 49}},
};

// What raises nothing: values at their bounds, and those beyond them too seldom or in too small a share.
const std::vector<Cells> kQuiet[] = {
    {},
    {{kVolts, 1.05, 200}, {kAmps, 30}, {kWatts, 6000, 1, 50}, {kHertz, 61}, {kHertz, 59, 1, 9}},
    {{kVolts, 1.0501, 2, 40}, {kAmps, 2.61, 80}, {kWatts, 200, 200}, {kCrest, 1.3999, 5}},
    {{kVolts, 0, 2, 50}, {kAmps, 1.601, 80, 10}, {kHertz, 40, 1, 50}, {kCrest, 1.4301, 5}},
    {{kVolts, 0.9, 2, 50}, {kAmps, 1.6, 100}, {kHertz, 50, 200}, {kCrest, 1.4, 9}, {kCrest, 1.43, 9, 50}},
    {{kVolts, 0.952, 3, 49}, ramp(kAmps, 3.9, -0.06)},  // sags of 95 % of the mean; below 1 A in the end
    {{kWatts, 200, 200}, {kWatts, 300.1, 80, 11}},
    {{kWatts, 200, 200}, {kWatts, 200.1, 80, 11}},
};

TEST(ExpertChart, RaisesWhatEachRuleSaysAtItsBounds) {
  for (const auto& volts : {std::pair{120, 120}, {240, 208}, {240, 230}, {240, 240}}) {
    const auto nominal = volts.first, rated = volts.second;
    for (const auto& changes : kQuiet) {
      const Logs logs = chart(kRows, rated, changes);
      EXPECT_EQ(raised(expertChart(logs, device(nominal, rated))), std::set<int>{}) << rated;
    }
    for (const Case& one : kCases) {
      const Logs logs = chart(kRows, rated, one.changes);
      std::set<int> found = one.found;
      const auto on = [&](int line) { return raised(expertChart(logs, device(nominal, rated, line))); };
      EXPECT_EQ(on(1), found) << one.what << " at " << rated << ", second line";
      found.insert(one.firstLine.begin(), one.firstLine.end());
      EXPECT_EQ(on(0), found) << one.what << " at " << rated;
    }
  }
}

// Three rows of 300 have a steady interval, but only four of them are more than a hundredth.
TEST(ExpertChart, TellsOfRareRowsWhetherTheyAreSteadyAndOfTheirShareAboveAHundredth) {
  const std::tuple<double, std::size_t, std::set<int>> rows[] = {
      {126.1, 3, {11}}, {126.1, 4, {11, 12, 13}}, {40, 4, {32}}, {39.99, 4, {13, 19, 22, 32}}};
  for (const auto& [volts, count, found] : rows) {
    const Logs logs = chart(302, 120, {{kVolts, volts / 120, count, 149}});
    EXPECT_EQ(raised(expertChart(logs, device())), found) << count << " of " << volts << " V";
  }
}

// All rows are off where the mean makes it 60 Hz, and the other half where it makes it 50 Hz.
TEST(ExpertChart, TakesMeansBetween46And54HzFor50Hz) {
  for (const auto& [others, off] : {std::pair(58.0, 100u), {57.98, 50u}, {42.0, 100u}, {42.02, 50u}}) {
    const Logs logs = chart(101, 120, {{kHertz, others, 100}, {kHertz, 50, 50, 0, 2}});
    EXPECT_EQ(expertChart(logs, device()).rows[46].size(), off) << others;
  }
}

TEST(ExpertChart, LooksAtTheNeutralOfA120VDeviceThatMeasuresIt) {
  // How many rows have so many volts, and what the others have.
  using Row = std::tuple<std::size_t, double, double, std::set<int>>;
  const Row rows[] = {{9, 5, 0.5, {}},    {4, 5.01, 0.5, {44, 45}},
                      {5, 5.01, 0.5, {}}, {6, 5.01, 0.5, {22, 42, 43}},
                      {0, 0, 2.0, {}},    {0, 0, 2.01, {22, 42, 43, 45}}};
  const std::tuple<int, int, const char*, bool> devices[] = {
      {120, 0, "1.KD1", true}, {240, 0, "1.KD1", false}, {120, 1, "2.00", true},
      {120, 1, "1*99", false}, {120, 1, "1.99", false},  {240, 1, "2.00", false}};
  for (const auto& [count, volts, others, found] : rows) {
    const Logs logs = chart(kRows, 120, {{kNeutral, others, 101}, {kNeutral, volts, count, 20}});
    for (const auto& [nominal, modelLine, firmware, looks] : devices) {
      const Analysis all = expertChart(logs, {modelLine, firmware, nominal, 120, 0});
      EXPECT_EQ(raised(all), looks ? found : std::set<int>{}) << volts << ' ' << others << firmware;
    }
  }
}

TEST(ExpertChart, TellsTheRowsBehindEachFindingAndTheShareOfASquareWave) {
  const Analysis found = expertChart(
      chart(kRows, 120, {{kAmps, 31, 2, 40, 30}, {kWatts, 7000, 1, 12}, {kCrest, 1, 3}}), device());
  EXPECT_EQ(found.rows[38], (RowNumbers{12, 40, 70}));
  const std::string text = "Equipment was probably powered by a UPS with square wave output";
  EXPECT_EQ(found.texts.at(47), text + " 3.00% of the data acquisition period.");
  EXPECT_EQ(expertChart(chart(kRows, 120), device()).texts.at(47), text + '.');
}

TEST(ExpertChart, TellsOfSteadyRowsByTheirMoments) {
  Logs logs = chart(kRows, 120, {{kVolts, 1.06, 3, 49}});
  logs.chartData[50][kTime] += 5;
  logs.chartData[51][kTime] += 9;
  EXPECT_EQ(raised(expertChart(logs, device())), (std::set<int>{12, 13}));
}

TEST(ExpertChart, EndsWithWhatItHasAtTheRuleThatFails) {
  const Logs two = chart(2, 120, {{kAmps, 40}, {kHertz, 40}});  // the share of current divides by 0
  EXPECT_EQ(raised(expertChart(two, device())), (std::set<int>{3, 29, 38}));
  for (const std::size_t rows : {0u, 1u})
    EXPECT_EQ(raised(expertChart(chart(rows, 120), device())).size(), 0u);
  const std::tuple<std::size_t, std::size_t, std::set<int>> broken[] = {
      {kTime, 41, {}}, {kAmps, 0, {11, 12, 13}}, {kWatts, 60, {3, 11, 12, 13, 29, 38}}};
  for (const auto& [column, row, found] : broken) {
    Logs logs = chart(kRows, 120, {{kVolts, 1.06, 3, 40}, {kAmps, 40, 1, 5}, {kHertz, 65, 1, 50}});
    logs.chartData[row][column] = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(raised(expertChart(logs, device())), found) << column << ' ' << row;
  }
}

}  // namespace
}  // namespace zephon
