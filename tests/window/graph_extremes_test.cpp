#include "window/graph_extremes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace zephon {
namespace {

struct Points : PlotData {
  std::size_t size() const override { return ys.size(); }
  double x(std::size_t index) const override { return xs.at(index); }
  double y(std::size_t index) const override { return ys.at(index); }
  std::vector<double> xs, ys;
};

// The extremes of each block are those that a look at all its points finds.
void expectRight(const Extremes& extremes, const Points& points) {
  std::size_t width = 1;
  for (std::size_t level = 0; level < extremes.levels(); ++level) {
    width *= Extremes::kFan;
    ASSERT_EQ(extremes.blocks(level), (points.size() + width - 1) / width);
    for (std::size_t block = 0; block < extremes.blocks(level); ++block) {
      double least = INFINITY;
      double greatest = -INFINITY;
      for (std::size_t i = block * width; i < std::min((block + 1) * width, points.size()); ++i) {
        least = std::fmin(least, points.ys[i]);
        greatest = std::fmax(greatest, points.ys[i]);
      }
      const Extremes::Pair pair = extremes.block(level, block);
      ASSERT_EQ(pair.least != Extremes::kNone, least <= greatest);
      if (least > greatest) continue;
      ASSERT_EQ(points.ys[pair.least], least) << level << " " << block;
      ASSERT_EQ(points.ys[pair.greatest], greatest) << level << " " << block;
    }
  }
  ASSERT_EQ(extremes.blocks(extremes.levels() - 1), 1U);
}

TEST(Extremes, AreThoseOfEveryBlockHoweverThePlotGrew) {
  std::mt19937 random(7);
  Points points;
  Extremes extremes;
  for (const std::size_t size : {1U, 8U, 9U, 64U, 65U, 5000U}) {
    while (points.size() < size) {
      const auto draw = random() % 50;
      points.ys.push_back(draw < 9 ? NAN : static_cast<double>(random() % 1000) - 500);
    }
    extremes.grow(points, size);
    expectRight(extremes, points);
  }
}

TEST(Points, AreFoundByTheirX) {
  Points points;
  points.xs = {1, 2, 2, 5, 9, 10};
  points.ys = {0, 1, NAN, 3, NAN, 5};
  const struct {
    double x;
    std::size_t first, nearest;
  } cases[] = {{-3, 0, 0}, {2, 1, 1}, {2.1, 3, 1}, {3.6, 3, 3}, {7.4, 4, 3}, {7.6, 4, 5}, {99, 6, 5}};
  for (const auto& one : cases) {
    EXPECT_EQ(firstFrom(points, 6, one.x), one.first) << one.x;
    EXPECT_EQ(nearestPoint(points, 6, one.x), one.nearest) << one.x;
  }
  EXPECT_EQ(nextPoint(points, 6, 0, -1), std::nullopt);
  EXPECT_EQ(nearestPoint(points, 0, 1), std::nullopt);
  points.ys.assign(6, NAN);
  EXPECT_EQ(nearestPoint(points, 6, 1), std::nullopt);
}

}  // namespace
}  // namespace zephon
