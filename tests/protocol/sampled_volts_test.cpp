#include "protocol/sampled_volts.h"

#include <gtest/gtest.h>

#include "support/bench.h"

namespace zephon {
namespace {

using testing_support::Script;

TEST(LineGroundVolts, AreCorrectedByTheFittedSteps) {
  const std::tuple<int, bool, std::vector<std::pair<double, float>>> rows[] = {
      // 19.3 and 24.2 less 4, of which the first is too low to tell; 82.5 goes to even
      {120, false, {{4, 0}, {5, 20}, {11.2, 25}, {12, 30}, {75, 82}, {120, 120}, {180, 170}}},
      {120, true, {{120, 120}}},
      {208, false, {{100, 103}}},
      // the two bends of the low end
      {240, false, {{0, 0}, {20, 0}, {25, 41}, {30, 51}, {40, 72}, {50, 90}}},
      // the lower steps, none, the upper steps
      {240, false, {{55, 101}, {64, 114}, {66, 118}, {68, 122}, {75, 133}, {85, 149}, {95, 165}, {137, 227}}},
      {240, false, {{139, 229}, {146, 239}, {153, 248}, {173, 277}}},
      {240, true, {{139, 239}, {25, 56}}},  // ten more, ahead of the bends
  };
  for (const auto& [nominal, centerTap, rawAndVolts] : rows) {
    for (const auto& [raw, volts] : rawAndVolts) {
      const auto sum = static_cast<std::int32_t>((raw + 5) * 50);
      EXPECT_EQ(lineGroundVolts(sum, nominal, centerTap), volts) << raw << " at " << nominal;
    }
  }
}

TEST(NeutralGroundVolts, StartAtThree) {
  for (const auto& [sum, text] :
       {std::pair{125, "0-3 V"}, {126, "3 V"}, {150, "3 V"}, {151, "4 V"}, {4950, "stays"}, {5000, "101 V"}})
    EXPECT_EQ(neutralGroundText(neutralGroundVolts(sum)).value_or("stays"), text) << sum;
}

TEST(GetVNGtr, SumsPlainCodesWithoutAPauseAhead) {
  Script script(1);
  script.peer.answer("p", "\x64");
  EXPECT_TRUE(getVNGtr(script.main));
  EXPECT_DOUBLE_EQ(script.nowMs(), 50);
  EXPECT_EQ(script.main.measurement.VngLbl.caption(), "101 V");
}

constexpr char kSample120[] = "\xAD";  // 125 counts: 120 V

TEST(GetVLGtr, ALostSampleStartsTheSumAnewWithOneMore) {
  Script script(1);
  for (int i = 0; i < 30; ++i) script.peer.answer("v", "\xF0");  // forgotten
  script.peer.answer("v", "");
  script.peer.answer("v", kSample120);
  EXPECT_TRUE(getVLGtr(script.main));
  EXPECT_EQ(script.peer.heard().size(), 30u + 1 + 51);
  EXPECT_DOUBLE_EQ(script.nowMs(), 50 + 30 + 200 + 400 + 51);    // a pause, then a millisecond a sample
  EXPECT_EQ(script.main.measurement.VlnLbl.caption(), "122 V");  // 51 times 125 over 50, less 5, is 122.5
}

TEST(GetVLGtr, GivesUpAfterTenTriesInARow) {
  Script script(1);
  for (int i = 0; i < 9; ++i) script.peer.answer("v", "");
  script.peer.answer("v", kSample120);
  EXPECT_TRUE(getVLGtr(script.main));
  script.peer.silence("v");
  const double before = script.nowMs();
  EXPECT_FALSE(getVLGtr(script.main));
  EXPECT_DOUBLE_EQ(script.nowMs() - before, 50 + 10 * 200 + 9 * 400);
}

}  // namespace
}  // namespace zephon
