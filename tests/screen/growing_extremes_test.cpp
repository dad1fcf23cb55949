#include "screen/growing_extremes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace zephon {
namespace {

constexpr double kGap = std::numeric_limits<double>::quiet_NaN();

TEST(GrowingExtremes, OfAnyStretchAreThoseOfItsValues) {
  std::mt19937 random(5);
  const auto below = [&](std::size_t bound) { return random() % bound; };
  std::vector<double> values;
  GrowingExtremes extremes;
  for (int i = 0; i < 20'000; ++i) {
    const bool gap = below(3) == 0 || (i > 6000 && i < 11'000);
    values.push_back(gap ? kGap : static_cast<double>(random()) - 2e9);
    extremes.add(values.back());
    if (i % 23 != 0) continue;
    const std::size_t last = below(values.size() + 1);
    const std::size_t first = below(last + 1);
    ValueRange expected;
    for (std::size_t k = first; k < last; ++k) expected.add(values[k]);
    std::size_t read = 0;
    const ValueRange found = extremes.of(first, last, [&](std::size_t k) {
      ++read;
      return values[k];
    });
    ASSERT_EQ(found, expected) << first << " to " << last;
    ASSERT_LE(read, 126u);
  }
}

TEST(GrowingExtremes, OfGapsAndOfNothingAreNone) {
  GrowingExtremes extremes;
  for (int i = 0; i < 5000; ++i) extremes.add(kGap);
  const auto gap = [](std::size_t) { return kGap; };
  EXPECT_TRUE(extremes.of(0, 5000, gap).empty());
  EXPECT_TRUE(extremes.of(64, 64, gap).empty());
}

}  // namespace
}  // namespace zephon
