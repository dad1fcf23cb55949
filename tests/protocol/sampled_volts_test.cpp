#include "protocol/sampled_volts.h"

#include <gtest/gtest.h>

#include "support/bench.h"

namespace zephon {
namespace {

using simulator::Line;
using testing_support::Script;
using testing_support::World;

constexpr std::int32_t sumOf(double raw) {
  return static_cast<std::int32_t>((raw + 5) * 50);
}

TEST(LineGroundVolts, AreCorrectedByTheFittedSteps) {
  const struct {
    double raw;
    int nominal;
    bool centerTap;
    float volts;
  } rows[] = {
      {4, 120, false, 0},                            // 19.3 is under what the device can tell
      {5, 120, false, 20},                           // 24.17 less 4
      {11.2, 120, false, 25},                        // the last low one
      {12, 120, false, 30},   {75, 120, false, 82},  // 82.5, to even
      {120, 120, false, 120}, {120, 120, true, 120},  {180, 120, false, 170},
      {0, 240, false, 0},     {20, 240, false, 0},     // 31.4
      {25, 240, false, 41},   {30, 240, false, 51},    // the lowest bend
      {40, 240, false, 72},   {50, 240, false, 90},    // the next
      {55, 240, false, 101},  {64, 240, false, 114},   // less 5
      {66, 240, false, 118},  {68, 240, false, 122},   // less 4, less 3
      {75, 240, false, 133},  {85, 240, false, 149},   // less 2, less 1
      {95, 240, false, 165},  {137, 240, false, 227},  // between the tables
      {139, 240, false, 229}, {146, 240, false, 239},  // less 1, less 2
      {153, 240, false, 248}, {173, 240, false, 277},  // less 3, less 4
      {139, 240, true, 239},  {25, 240, true, 56},     // ten more come before the low bends
      {100, 208, false, 103},                          // no other rating has a divider
  };
  for (const auto& row : rows) {
    EXPECT_EQ(lineGroundVolts(sumOf(row.raw), row.nominal, row.centerTap), row.volts)
        << row.raw << " at " << row.nominal;
  }
}

TEST(NeutralGroundVolts, StartAtThree) {
  const struct {
    std::int32_t sum;
    float volts;
    const char* text;
  } rows[] = {{0, 0, "0-3 V"},      {124, 0, "0-3 V"},   {125, 0, "0-3 V"},  // 2.5 rounds to 2
              {126, 3, "3 V"},      {150, 3, "3 V"},     {151, 4, "4 V"},    // above 3 one more
              {4950, 100, nullptr}, {5000, 101, "101 V"}};
  for (const auto& row : rows) {
    EXPECT_EQ(neutralGroundVolts(row.sum), row.volts) << row.sum;
    EXPECT_EQ(neutralGroundText(row.volts).value_or("stays"), row.text ? row.text : "stays");
  }
}

TEST(GetVLGtr, TellsWhatTheDeviceMeasures) {
  for (const int rating : {120, 240}) {
    World world({.line = Line::Tessara, .rating = rating, .firmware = rating == 240 ? "1*14" : "2.00"});
    for (const double volts : {45.0, 75.0, 100.0, 118.0, 140.0, 160.0}) {
      world.device.hold({.volts = volts});
      ASSERT_TRUE(getVLGtr(world.main));
      EXPECT_NEAR(world.main.readings.lastVln, volts, 1) << rating;
    }
    EXPECT_EQ(world.main.measurement.VlnLbl.caption(), "160 V");
  }
}

// Sample bytes: a code of 173 is 125 counts, 120 volts.
constexpr char kSample120[] = "\xAD";

TEST(GetVLGtr, AveragesFiftySamples) {
  Script script(1);
  script.main.limits = {.UVco = 80, .UVre = 100, .OVre = 135, .OVco = 150};
  script.peer.answer("v", kSample120);
  EXPECT_TRUE(getVLGtr(script.main));
  EXPECT_EQ(script.peer.heard().size(), 50u);
  EXPECT_DOUBLE_EQ(script.nowMs(), 50 + 50);  // a pause, then a millisecond a sample
  EXPECT_EQ(script.main.readings.lastVln, 120);
  EXPECT_EQ(script.main.measurement.VlnLbl.caption(), "120 V");
  EXPECT_EQ(script.main.measurement.VlnSlide.value(), 120);
  EXPECT_EQ(script.main.measurement.VlnSlide.pointer().colour, kGreen);
}

TEST(GetVLGtr, ALostSampleStartsTheSumAnewWithOneMore) {
  Script script(1);
  for (int i = 0; i < 30; ++i) script.peer.answer("v", "\xF0");  // forgotten by the restart
  script.peer.answer("v", "");
  script.peer.answer("v", kSample120);
  EXPECT_TRUE(getVLGtr(script.main));
  EXPECT_EQ(script.peer.heard().size(), 30u + 1 + 51);
  EXPECT_DOUBLE_EQ(script.nowMs(), 50 + 30 + 200 + 400 + 51);
  // 51 samples of 125 over 50: raw 122.5, reading 122.08.
  EXPECT_EQ(script.main.readings.lastVln, 122);
}

TEST(GetVLGtr, GivesUpAfterTenTriesInARow) {
  Script script(1);
  for (int i = 0; i < 9; ++i) script.peer.answer("v", "");
  script.peer.answer("v", kSample120);
  EXPECT_TRUE(getVLGtr(script.main));
  script.peer.forgetHeard();
  script.peer.silence("v");
  const double before = script.nowMs();
  EXPECT_FALSE(getVLGtr(script.main));
  EXPECT_EQ(script.peer.heard().size(), 10u);
  EXPECT_DOUBLE_EQ(script.nowMs() - before, 50 + 10 * 200 + 9 * 400);
  EXPECT_FALSE(script.main.exchange.Timer1.enabled());
}

TEST(GetVLGtr, EndsWhenThePageIsLeft) {
  Script script(1);
  script.peer.answer("v", kSample120, 5);
  for (const double when : {30.0, 72.5}) {  // in the pause, in a sample
    script.stay(Page::Measurement);
    const double before = script.nowMs();
    script.later(when, [&] { script.stay(Page::None); });
    EXPECT_FALSE(getVLGtr(script.main));
    EXPECT_LE(script.nowMs() - before, std::max(50.0, when));
  }
  EXPECT_EQ(script.main.readings.lastVln, 0);
}

TEST(GetVNGtr, SumsPlainCodesWithoutAPauseAhead) {
  Script script(1);
  script.peer.answer("p", "\x04");
  EXPECT_TRUE(getVNGtr(script.main));
  EXPECT_DOUBLE_EQ(script.nowMs(), 50);
  EXPECT_EQ(script.main.readings.lastVng, 5);
  EXPECT_EQ(script.main.measurement.VngLbl.caption(), "5 V");
  EXPECT_EQ(script.main.measurement.VngSlide.pointer().colour, kYellow);
  script.peer.answer("p", "\x64");
  EXPECT_TRUE(getVNGtr(script.main));
  EXPECT_EQ(script.main.measurement.VngSlide.axis().maximum, 280);
  script.peer.answer("p", std::string(1, '\0'));
  EXPECT_TRUE(getVNGtr(script.main));
  EXPECT_EQ(script.main.measurement.VngLbl.caption(), "0-3 V");
  EXPECT_EQ(script.main.measurement.VngSlide.value(), 0);
}

}  // namespace
}  // namespace zephon
