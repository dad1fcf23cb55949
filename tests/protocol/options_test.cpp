#include "protocol/options.h"

#include <gtest/gtest.h>

#include "protocol/battery.h"
#include "support/bench.h"

namespace zephon {
namespace {

using testing_support::Script;
using testing_support::World;
using Commands = std::vector<std::string>;

TEST(Options, TheReplyIsOnTheButton) {
  const struct {
    Button SetupElements::*button;
    bool (*get)(Main&);
    const char* read;
    std::size_t yes, yesTip, no, noTip;
  } cases[] = {
      {&SetupElements::enableAutoTXbtn, getAutoTXstate, "g^", 92, 93, 94, 95},
      {&SetupElements::startInternalCMbtn, getInternalChartState, "ga", 96, 97, 98, 99},
      {&SetupElements::enableGndBtn, getGndDetectState, "gb", 165, 170, 171, 172},
      {&SetupElements::enableOLcoBtn, getOLcoState, "gg", 204, 206, 205, 207},
      {&SetupElements::enablePowerFailHoldBtn, getPowerFailHold, "gh", 209, 212, 210, 211},
  };
  for (const auto& c : cases) {
    Script script;
    Main& main = script.main;
    Button& button = main.setup.*c.button;
    button.onChange = [&](bool) { EXPECT_FALSE(button.enabled()) << "a change by the program is no press"; };
    for (const char* reply : {"Y", "N", "NY", "y"})
      script.peer.answer(c.read, reply);  // the last letter counts
    script.stay(Page::Data);
    EXPECT_TRUE(c.get(main)) << c.read;
    EXPECT_EQ(button.value(), c.get == getAutoTXstate) << "off the setup page no other one is shown";
    script.stay(Page::Setup);
    ASSERT_TRUE(c.get(main)) << c.read;
    EXPECT_EQ(button.onText() + button.offText() + button.tooltip(),
              main.dict[c.no] + main.dict[c.no] + main.dict[c.noTip]);
    ASSERT_TRUE(c.get(main)) << c.read;
    EXPECT_TRUE(button.value() && button.enabled()) << c.read;
    EXPECT_EQ(button.onText() + button.offText() + button.tooltip(),
              main.dict[c.yes] + main.dict[c.yes] + main.dict[c.yesTip]);
    EXPECT_FALSE(c.get(main)) << c.read;
    script.peer.silence(c.read);
    EXPECT_FALSE(c.get(main)) << c.read;
  }
}

TEST(Options, TheSecondLineDoesNotConfirmItsOne) {
  World second(simulator::makeProfile(simulator::Line::Tessara));
  EXPECT_TRUE(setEnableAutoTX(second.main, true));
  second.run(20);  // the next command would purge it from the line
  ASSERT_TRUE(getAutoTXstate(second.main));
  EXPECT_TRUE(second.main.setup.enableAutoTXbtn.value());
  EXPECT_TRUE(setEnableAutoTX(second.main, false));
  EXPECT_EQ(second.writes(), (Commands{"k", "j", "l"}));
}

TEST(Battery, ReadingToText) {
  const std::pair<int, const char*> cases[] = {
      {255, "B: 100%, 2.99V"}, {0, "B: 0%, 0V"}, {128, "B: 50%, 1.5V"}, {250, "B: 98%, 2.93V"}};
  for (const auto& [reading, text] : cases)
    EXPECT_EQ(batteryText(static_cast<std::uint8_t>(reading), "B"), text);
  World world;
  ASSERT_TRUE(getBattery(world.main));
  EXPECT_EQ(world.main.frame.EUlbl.caption(), "Battery: 98%, 2.93V");
  world.device.cutLine();
  EXPECT_FALSE(getBattery(world.main));
}

}  // namespace
}  // namespace zephon
