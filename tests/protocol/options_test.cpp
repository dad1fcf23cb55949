#include "protocol/options.h"

#include <gtest/gtest.h>

#include "protocol/battery.h"
#include "support/bench.h"

namespace zephon {
namespace {

using testing_support::Script;
using testing_support::World;

TEST(Options, TheReplyIsOnTheButton) {
  using Key = std::size_t;  // the text and the tip of yes, and those of no
  const std::tuple<Button SetupElements::*, bool (*)(Main&), const char*, Key, Key, Key, Key> cases[] = {
      {&SetupElements::enableAutoTXbtn, getAutoTXstate, "g^", 92, 93, 94, 95},
      {&SetupElements::startInternalCMbtn, getInternalChartState, "ga", 96, 97, 98, 99},
      {&SetupElements::enableGndBtn, getGndDetectState, "gb", 165, 170, 171, 172},
      {&SetupElements::enableOLcoBtn, getOLcoState, "gg", 204, 206, 205, 207},
      {&SetupElements::enablePowerFailHoldBtn, getPowerFailHold, "gh", 209, 212, 210, 211},
  };
  for (const auto& [member, get, read, yes, yesTip, no, noTip] : cases) {
    SCOPED_TRACE(read);
    Script script;
    Main& main = script.main;
    Button& button = main.setup.*member;
    button.onChange = [&](bool) { EXPECT_FALSE(button.enabled()) << "a change by the program is no press"; };
    for (const char* reply : {"Y", "N", "NY", "y"})
      script.peer.answer(read, reply);  // the last letter counts
    script.stay(Page::Data);
    EXPECT_TRUE(get(main));
    EXPECT_EQ(button.value(), get == getAutoTXstate) << "off the setup page no other one is shown";
    script.stay(Page::Setup);
    ASSERT_TRUE(get(main));
    EXPECT_EQ(button.onText() + button.tooltip(), main.dict[no] + main.dict[noTip]);
    ASSERT_TRUE(get(main));
    EXPECT_TRUE(button.value() && button.enabled());
    EXPECT_EQ(button.offText() + button.tooltip(), main.dict[yes] + main.dict[yesTip]);
    EXPECT_FALSE(get(main));
  }
}

TEST(Battery, ReadingToText) {
  EXPECT_EQ(batteryText(0, "B") + batteryText(255, "B"), "B: 0%, 0VB: 100%, 2.99V");
  World world;
  ASSERT_TRUE(getBattery(world.main));
  EXPECT_EQ(world.main.frame.EUlbl.caption(), "Battery: 98%, 2.93V");
}

}  // namespace
}  // namespace zephon
