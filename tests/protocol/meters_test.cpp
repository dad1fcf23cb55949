#include "protocol/meters.h"

#include <gtest/gtest.h>

namespace zephon {
namespace {

constexpr Limits kLimits{.UVco = 80, .UVre = 100, .UVrs = 105, .OVrs = 130, .OVre = 135, .OVco = 150};

TEST(Meters, StandInTheOrderOfTheirIds) {
  for (std::size_t i = 0; i < kMeters.size(); ++i) EXPECT_EQ(static_cast<std::size_t>(kMeters[i].id), i);
}

TEST(ReadingText, FollowsTheMetersPicture) {
  const struct {
    MeterId id;
    float reading;
    const char* text;  // null: the label stays
  } rows[] = {
      {MeterId::Vln, 120.5f, "120.50 V"},  {MeterId::Vln, 0.0f, "00.00 V"},
      {MeterId::Vln, 9.25f, "09.25 V"},    {MeterId::I, 9.996f, "9.996 A"},
      {MeterId::I, 10.0f, nullptr},        {MeterId::I, 10.004f, "10.00 A"},
      {MeterId::P, 1500.0f, "1500.0 W"},   {MeterId::Vng, 0.004f, "0.004 V"},
      {MeterId::Vng, 100.0f, nullptr},     {MeterId::Vng, 99.996f, "99.996 V"},
      {MeterId::Vng, 100.25f, "100.25 V"}, {MeterId::F, 59.94f, "59.94 Hz"},
      {MeterId::PF, -0.5f, "-0.500 PF"},   {MeterId::PF, -0.0f, "0.000 PF"},
      {MeterId::CF, 1.414f, "1.414 CF"},
  };
  for (const auto& row : rows) {
    const auto text = readingText(meterOf(row.id), row.reading);
    EXPECT_EQ(text.value_or("stays"), row.text ? row.text : "stays") << row.reading;
  }
}

TEST(Colours, FollowTheMetersBounds) {
  const struct {
    MeterId id;
    float reading;
    Colour colour;
  } rows[] = {
      {MeterId::Vln, 79.99f, kRed},   {MeterId::Vln, 80, kYellow},    {MeterId::Vln, 99.99f, kYellow},
      {MeterId::Vln, 100, kGreen},    {MeterId::Vln, 135, kGreen},    {MeterId::Vln, 135.01f, kYellow},
      {MeterId::Vln, 150, kYellow},   {MeterId::Vln, 150.01f, kRed},  {MeterId::I, 15, kGreen},
      {MeterId::I, 15.004f, kYellow}, {MeterId::I, 20, kYellow},      {MeterId::I, 20.004f, kRed},
      {MeterId::P, 1800, kGreen},     {MeterId::P, 1804, kYellow},    {MeterId::P, 2404, kRed},
      {MeterId::Vng, 3, kGreen},      {MeterId::Vng, 5, kYellow},     {MeterId::Vng, 5.004f, kRed},
      {MeterId::F, 60.5f, kGreen},    {MeterId::F, 59.4f, kYellow},   {MeterId::F, 61, kYellow},
      {MeterId::F, 61.1f, kRed},      {MeterId::F, 49.5f, kGreen},    {MeterId::F, 48.9f, kRed},
      {MeterId::PF, 0.602f, kGreen},  {MeterId::PF, 0.6f, kGreen},    {MeterId::PF, 0.4f, kYellow},
      {MeterId::PF, 0.398f, kRed},    {MeterId::PF, -0.9f, kRed},     {MeterId::CF, 1.35f, kGreen},
      {MeterId::CF, 1.45f, kGreen},   {MeterId::CF, 1.451f, kYellow}, {MeterId::CF, 1.2f, kYellow},
      {MeterId::CF, 1.6f, kYellow},   {MeterId::CF, 1.199f, kRed},    {MeterId::CF, 1.601f, kRed},
  };
  for (const auto& row : rows) {
    const auto bands = bandsOf(row.id, row.reading, kLimits, 120);
    ASSERT_TRUE(bands);
    EXPECT_EQ(colourIn(*bands, row.reading), row.colour) << row.reading;
  }
  EXPECT_FALSE(bandsOf(MeterId::Vng, 50, kLimits, 240));
  EXPECT_EQ(colourIn(*bandsOf(MeterId::P, 3600, kLimits, 240), 3600), kGreen);
}

TEST(Axes, FollowNominalAndRange) {
  EXPECT_EQ(nominalHertz(53.99f), 50);
  EXPECT_EQ(nominalHertz(54.0f), 60);
  EXPECT_EQ(axisOf(MeterId::F, 49.9f), (Slider::Axis{45, 55, 1, 0.5}));
  EXPECT_EQ(axisOf(MeterId::F, 0), (Slider::Axis{45, 55, 1, 0.5}));
  EXPECT_EQ(axisOf(MeterId::Vng, 19.99f), (Slider::Axis{0, 10, 1, 1}));
  EXPECT_EQ(axisOf(MeterId::Vng, 20), (Slider::Axis{0, 280, 40, 20}));
  EXPECT_FALSE(axisOf(MeterId::Vln, 500));
}

}  // namespace
}  // namespace zephon
