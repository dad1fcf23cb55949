#include "protocol/meters.h"

#include <gtest/gtest.h>

namespace zephon {
namespace {

using M = MeterId;

TEST(Colours, ChangeBeyondTheMetersBounds) {
  constexpr Limits kLimits{.UVco = 80, .UVre = 100, .UVrs = 105, .OVrs = 130, .OVre = 135, .OVco = 150};
  using Readings = std::vector<float>;
  const std::tuple<M, Readings, Readings, Readings> rows[] = {
      {M::Vln, {100, 135}, {80, 99.99f, 135.01f, 150}, {79.99f, 150.01f}},
      {M::I, {0, 15}, {15.004f, 20}, {20.004f}},
      {M::P, {0, 1800}, {1804, 2400}, {2404}},
      {M::Vng, {0, 3}, {3.004f, 5}, {5.004f}},
      {M::F, {59.5f, 60.5f, 49.5f, 50.5f}, {59, 59.4f, 60.6f, 61, 49}, {58.9f, 61.1f, 48.9f, 54}},
      {M::PF, {0.6f, 1}, {0.4f, 0.594f}, {0.398f, -0.9f}},
      {M::CF, {1.35f, 1.45f}, {1.2f, 1.349f, 1.451f, 1.6f}, {1.199f, 1.601f}}};
  for (const auto& [id, green, yellow, red] : rows) {
    for (const auto& [readings, colour] : {std::pair(green, kGreen), {yellow, kYellow}, {red, kRed}}) {
      for (const float reading : readings)
        EXPECT_EQ(colourIn(bandsOf(id, reading, kLimits, 120).value(), reading), colour) << reading;
    }
  }
  EXPECT_FALSE(bandsOf(M::Vng, 50, kLimits, 240));
  EXPECT_EQ(bandsOf(M::P, 0, kLimits, 240)->greenTo, 3600);
}

TEST(Axes, FollowNominalAndRange) {
  EXPECT_EQ(nominalHertz(53.99f), 50);
  EXPECT_EQ(nominalHertz(54.0f), 60);
  EXPECT_EQ(axisOf(M::F, 49.9f), (Slider::Axis{45, 55, 1, 0.5}));
  EXPECT_EQ(axisOf(M::Vng, 19.99f), (Slider::Axis{0, 10, 1, 1}));
  EXPECT_EQ(axisOf(M::Vng, 20), (Slider::Axis{0, 280, 40, 20}));
}

}  // namespace
}  // namespace zephon
