#include "expert/trend_statistics.h"

#include <gtest/gtest.h>

#include <limits>

#include "expert/tables.h"

namespace zephon {
namespace {

using namespace testing_support;

const double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(GetSlope, ByKindAndLineUpToEitherBound) {
  using Row = std::tuple<std::string_view, Series, int, int>;
  const Row rows[] = {{kHist, {7}, 0, 0},          {kHist, {0, 0.05}, 0, 1},  // on the bound
                      {kHist, {0, -0.05}, 0, -1},  {kHist, {0, 0.0501}, 1, 1},
                      {kHist, {0, 0.01}, 0, 0},    {kHist, {0, 0.0101}, 0, 1},
                      {kHist, {0, kNaN, 9}, 0, 0}, {kTimestamp, {1, 3, 2, 0}, -1, -1},
                      {kChart, {0, 1}, 0, 0},      {kChart, {0, -2}, -1, -1}};  // means of 0.5 and 1
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
  for (const std::size_t rows : {0u, 2u}) EXPECT_EQ(movingMean(chart(rows, 120), kChart, 2, 2), Series{0});
}

TEST(MovingMean, OfAHistoryHasItsLastDayFirst) {
  const auto mean = [](std::size_t rows) {
    return movingMean(history(rows, 120, {ramp(6, 10, 1)}), kHist, 6, 6);
  };
  EXPECT_EQ(mean(6 * 48 + 1), (Series{13, 12, 11}));  // days 0 to 4 of 10 to 14
  EXPECT_EQ(mean(3 * 48 + 24), Series{0});
  EXPECT_EQ(mean(4 * 48 + 25), Series{11});  // U / 48 - 2 is 2.5, which rounds to 2
  EXPECT_EQ(mean(4 * 48 + 26).size(), 2u);
  for (const std::size_t rows : {0u, 47u}) EXPECT_EQ(mean(rows), Series{0});
}

TEST(MovingMean, OfEventsCountsFromTheLastRowsDayToTheFirstOnes) {
  const std::vector<Event> list = {{64, 4}, {64, 4, 3}, {32, 3}, {8, 2}, {64, 1, 5}, {64, 1}};
  EXPECT_EQ(movingMean(events(list), kTimestamp, 64, 64), (Series{1.0 / 3, 2.0 / 3, 2.0 / 3, 2.0 / 3}));
  EXPECT_EQ(movingMean(events(list), kTimestamp, 32, 8), (Series{2.0 / 3, 2.0 / 3, 1.0 / 3, 0}));
  EXPECT_EQ(movingMean(events({{64, 1}, {64, 2}, {64, 4}}), kTimestamp, 64, 64), Series{0});  // oldest first
  EXPECT_EQ(movingMean(events({{64, 4}, {64, 5}, {1, 2}}), kTimestamp, 64, 64), Series{0});   // outside
}

}  // namespace
}  // namespace zephon
