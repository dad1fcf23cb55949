#include "expert/trend_statistics.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "expert/tables.h"

namespace zephon {
namespace {

using testing_support::chart;
using testing_support::Event;
using testing_support::events;
using testing_support::history;
using testing_support::ramp;

const double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(GetSlope, ByKindAndLineUpToEitherBound) {
  const std::tuple<std::string_view, Series, int, int> rows[] = {{kHist, {7}, 0, 0},
                                                                 {kHist, {4, 4, 4, 4}, 0, 0},
                                                                 {kHist, {0, 0.05}, 0, 1},  // on the bound
                                                                 {kHist, {0, -0.05}, 0, -1},
                                                                 {kHist, {0, 0.0501}, 1, 1},
                                                                 {kHist, {0, 0.01}, 0, 0},
                                                                 {kHist, {0, 0.0101}, 0, 1},
                                                                 {kTimestamp, {3, 2, 1, 0}, -1, -1},
                                                                 {kHist, {1, 3, 2, 0}, -1, -1},
                                                                 {kChart, {0, 1}, 0, 0},  // a mean of 0.5
                                                                 {kChart, {0, 2}, 1, 1},  // of exactly 1
                                                                 {kChart, {0, -2}, -1, -1},
                                                                 {kHist, {0, kNaN, 9}, 0, 0}};
  for (const auto& [kind, series, firstLine, secondLine] : rows) {
    EXPECT_EQ(getSlope(kind, series, 0), firstLine) << kind << series.back();
    EXPECT_EQ(getSlope(kind, series, 1), secondLine) << kind << series.back();
  }
}

TEST(MovingMean, OfAChartTakesEachThreeRowsTheLastOneToo) {
  Logs logs = chart(5, 120, {ramp(2, 1, 3)});
  EXPECT_EQ(movingMean(logs, kChart, 2, 2), (Series{4, 7, 10}));
  logs.chartData[4][2] = kNaN;
  EXPECT_EQ(movingMean(logs, kChart, 2, 2), Series{0});
  EXPECT_EQ(movingMean(chart(3, 120), kChart, 2, 2), Series{1});
  for (const std::size_t rows : {0u, 2u}) EXPECT_EQ(movingMean(chart(rows, 120), kChart, 2, 2), Series{0});
  for (const int column : {-1, 9}) EXPECT_EQ(movingMean(chart(9, 120), kChart, column, 0), Series{0});
}

TEST(MovingMean, OfAHistoryHasItsLastDayFirst) {
  const auto mean = [](std::size_t rows) {
    return movingMean(history(rows, 120, {ramp(6, 10, 1)}), kHist, 6, 6);
  };
  EXPECT_EQ(mean(6 * 48 + 1), (Series{13, 12, 11}));  // days 0 to 4 of 10 to 14
  EXPECT_EQ(mean(3 * 48 + 25), Series{11});           // U / 48 - 2 is 1.5, which rounds to 2
  EXPECT_EQ(mean(3 * 48 + 24), Series{0});
  EXPECT_EQ(mean(4 * 48 + 25), Series{11});  // 2.5, which rounds to 2 too
  EXPECT_EQ(mean(4 * 48 + 26).size(), 2u);
  for (const std::size_t rows : {0u, 47u}) EXPECT_EQ(mean(rows), Series{0});
}

TEST(MovingMean, OfEventsCountsFromTheLastRowsDayToTheFirstOnes) {
  const std::vector<Event> list = {{64, 4}, {64, 4, 3}, {32, 3}, {8, 2}, {64, 1, 5}, {64, 1}};
  EXPECT_EQ(movingMean(events(list), kTimestamp, 64, 64), (Series{1.0 / 3, 2.0 / 3, 2.0 / 3, 2.0 / 3}));
  EXPECT_EQ(movingMean(events(list), kTimestamp, 32, 8), (Series{2.0 / 3, 2.0 / 3, 1.0 / 3, 0}));
  EXPECT_EQ(movingMean(events({{64, 1}, {64, 2}, {64, 4}}), kTimestamp, 64, 64), Series{0});  // oldest first
  EXPECT_EQ(movingMean(events({{64, 4}, {64, 5}, {1, 2}}), kTimestamp, 64, 64), Series{0});   // outside
  EXPECT_EQ(movingMean(Logs{}, kTimestamp, 64, 64), Series{0});
}

TEST(IsRegular, NeedsThreeEventsOftenEnoughAtSteadyIntervals) {
  const std::pair<std::vector<Event>, bool> rows[] = {
      {{}, false},
      {{{8, 1}, {8, 2}, {8, 3}}, false},                // the last row takes no part
      {{{8, 1}, {8, 2}, {8, 3}, {1, 4}}, false},        // {1, 1, 0} falls by 0.5
      {{{8, 1}, {8, 1, 1}, {8, 1, 2}, {1, 4}}, true},   // {1/24, 1/24, 0} falls by 0.02
      {{{8, 1}, {16, 1, 1}, {8, 1, 2}, {1, 4}}, true},  // of both codes
      {{{8, 1}, {4, 1, 1}, {8, 1, 2}, {1, 4}}, false},
      {{{8, 1}, {8, 1, 2}, {8, 1, 5}, {1, 4}}, true}};  // {2/24, 3/24, 0} falls by 0.04
  for (const auto& [list, regular] : rows)
    EXPECT_EQ(isRegular(events(list), kTimestamp, 8, 16, 0), regular) << list.size();
  EXPECT_FALSE(isRegular(events(std::end(rows)[-1].first), kTimestamp, 8, 16, 1));  // steeper than 0.01
  for (const std::size_t size : {201u, 202u}) {  // the last index is 2: 0.01 * (U - 1) may be just below it
    std::vector<Event> list = {{8, 1}, {8, 1, 1}, {8, 1, 2}};
    list.resize(size, {1, 2});
    EXPECT_EQ(isRegular(events(list), kTimestamp, 8, 8, 0), size == 201) << size;
  }
}

}  // namespace
}  // namespace zephon
