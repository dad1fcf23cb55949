#include "protocol/options.h"

#include <gtest/gtest.h>

#include "protocol/battery.h"
#include "support/bench.h"

namespace zephon {
namespace {

using simulator::FaultKind;
using testing_support::Script;
using testing_support::World;
using Commands = std::vector<std::string>;

struct Case {
  Button SetupElements::*button;
  bool (*get)(Main&);
  const char* read;
  std::size_t yesText, yesTip, noText, noTip;
};
const Case kCases[] = {
    {&SetupElements::enableAutoTXbtn, getAutoTXstate, "g^", 92, 93, 94, 95},
    {&SetupElements::startInternalCMbtn, getInternalChartState, "ga", 96, 97, 98, 99},
    {&SetupElements::enableGndBtn, getGndDetectState, "gb", 165, 170, 171, 172},
    {&SetupElements::enableOLcoBtn, getOLcoState, "gg", 204, 206, 205, 207},
    {&SetupElements::enablePowerFailHoldBtn, getPowerFailHold, "gh", 209, 212, 210, 211},
};

TEST(Options, TheReplyIsOnTheButton) {
  for (const Case& c : kCases) {
    Script script;
    script.stay(Page::Setup);
    Button& button = script.main.setup.*c.button;
    int presses = 0;
    button.onChange = [&](bool) { presses += button.enabled() ? 1 : 0; };
    script.peer.answer(c.read, "NY");  // the last one counts
    script.peer.answer(c.read, "N");
    script.peer.answer(c.read, "y");
    ASSERT_TRUE(c.get(script.main)) << c.read;
    EXPECT_TRUE(button.value() && button.enabled()) << c.read;
    EXPECT_EQ(button.onText(), script.main.dict[c.yesText]);
    EXPECT_EQ(button.offText(), script.main.dict[c.yesText]);
    EXPECT_EQ(button.tooltip(), script.main.dict[c.yesTip]);
    ASSERT_TRUE(c.get(script.main)) << c.read;
    EXPECT_FALSE(button.value()) << c.read;
    EXPECT_EQ(button.caption(), script.main.dict[c.noText]);
    EXPECT_EQ(button.tooltip(), script.main.dict[c.noTip]);
    button.setEnabled(false);
    EXPECT_FALSE(c.get(script.main)) << c.read;
    EXPECT_FALSE(button.enabled()) << c.read;
    script.peer.silence(c.read);
    EXPECT_FALSE(c.get(script.main)) << c.read;
    EXPECT_EQ(presses, 0) << "a change by the program is no press";
  }
}

TEST(Options, OffTheSetupPageOnlyAutomaticTransmitIsShown) {
  for (const Case& c : kCases) {
    Script script;
    script.stay(Page::Data);
    script.peer.answer(c.read, "Y");
    EXPECT_TRUE(c.get(script.main)) << c.read;
    EXPECT_EQ((script.main.setup.*c.button).value(), c.get == getAutoTXstate) << c.read;
  }
}

TEST(Options, ADeviceWithoutChartMemory) {
  for (const Page page : {Page::Setup, Page::Data, Page::Chart}) {
    Script script;
    script.stay(page);
    script.main.data.cmDataBtn.setVisible(true);
    script.peer.answer("ga", "1");
    EXPECT_TRUE(getInternalChartState(script.main));
    EXPECT_EQ(script.main.data.cmDataBtn.visible(), page != Page::Data);
    EXPECT_EQ(script.main.setup.startInternalCMbtn.caption(), "");
  }
}

TEST(Options, WritesReachTheDevice) {
  World world;
  using S = simulator::Switches;
  const struct {
    bool (*set)(Main&, bool);
    bool S::*state;
    Commands on, off;
  } cases[] = {
      {setEnableAutoTX, &S::autoTransmit, {"sCY"}, {"sDY"}},
      {[](Main& main, bool) { return setStartInternalCM(main); }, &S::chartMemory, {"sEY"}, {"sEY"}},
      {setEnableGndDetect, &S::groundDetection, {"sFY"}, {"sFN"}},
      {setEnableOLshutdown, &S::overloadShutdown, {"sHY"}, {"sIY"}},
      {setEnablePowerFailHold, &S::powerFailHold, {"sJY"}, {"sJN"}},
  };
  for (const auto& c : cases) {
    for (const bool on : {false, true}) {
      world.device.clearLog();
      EXPECT_TRUE(c.set(world.main, on));
      EXPECT_EQ(world.commands(), on ? c.on : c.off);
      EXPECT_EQ(world.device.device().switches.*c.state, on || c.on == c.off) << c.on[0];
    }
    world.device.addFault({.kind = FaultKind::Refuse, .commands = 1});
    EXPECT_FALSE(c.set(world.main, true)) << c.on[0];
  }
  EXPECT_TRUE(world.device.noise().empty());
}

TEST(Options, TheSecondLineHasOneAndDoesNotConfirmIt) {
  World world(simulator::makeProfile(simulator::Line::Tessara));
  EXPECT_TRUE(setEnableAutoTX(world.main, true));
  world.run(20);  // the next command would purge it from the line
  ASSERT_TRUE(getAutoTXstate(world.main));
  EXPECT_TRUE(world.main.setup.enableAutoTXbtn.value());
  EXPECT_TRUE(setEnableAutoTX(world.main, false));
  EXPECT_EQ(world.writes(), (Commands{"k", "j", "l"}));
}

TEST(Battery, ReadingToText) {
  const struct {
    std::uint8_t reading;
    const char* text;
  } cases[] = {{0xFF, "B: 100%, 2.99V"},
               {0, "B: 0%, 0V"},
               {128, "B: 50%, 1.5V"},
               {0xFA, "B: 98%, 2.93V"},
               {1, "B: 0%, 0.01V"}};
  for (const auto& c : cases) EXPECT_EQ(batteryText(c.reading, "B"), c.text);
}

TEST(Battery, IsReadIntoTheLabel) {
  World world;
  world.device.device().battery = 0x80;
  ASSERT_TRUE(getBattery(world.main));
  EXPECT_EQ(world.main.frame.EUlbl.caption(), "Battery: 50%, 1.5V");
  world.device.cutLine();
  EXPECT_FALSE(getBattery(world.main));
}

}  // namespace
}  // namespace zephon
