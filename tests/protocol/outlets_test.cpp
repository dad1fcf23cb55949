#include "protocol/outlets.h"

#include <gtest/gtest.h>

#include "support/bench.h"

namespace zephon {
namespace {

using simulator::FaultKind;
using simulator::Line;
using testing_support::Script;
using testing_support::World;
using Commands = std::vector<std::string>;

// What the three buttons show, texts by key; 0 is no text, -1 the text that stood there before.
struct Shown {
  bool on, mayTurn, cycles, mayCycle, fault;
  int onText, offText, cycleOnText, cycleOffText, faultText;
};
const Shown kOff = {false, true, false, false, false, 0, 72, 0, 0, -1};
const Shown kOn = {true, true, false, true, false, 26, 0, 0, 28, -1};
const Shown kCycling = {false, false, true, false, false, 0, 71, 73, 0, -1};
Shown fault(int key) {
  return {false, false, false, false, true, 0, 71, 0, 0, key};
}

void expectShown(const Main& main, const Shown& want, const std::string& about) {
  const OutletElements& o = main.outlets;
  const auto text = [&](int key) { return key == 0 ? "" : key < 0 ? "before" : main.dict[std::size_t(key)]; };
  EXPECT_TRUE(o.oOnBtn.value() == want.on && o.oOnBtn.enabled() == want.mayTurn &&
              o.oCycBtn.value() == want.cycles && o.oCycBtn.enabled() == want.mayCycle &&
              o.oFltBtn.value() == want.fault)
      << about;
  EXPECT_EQ(o.oOnBtn.onText(), text(want.onText)) << about;
  EXPECT_EQ(o.oOnBtn.offText(), text(want.offText)) << about;
  EXPECT_EQ(o.oCycBtn.onText(), text(want.cycleOnText)) << about;
  EXPECT_EQ(o.oCycBtn.offText(), text(want.cycleOffText)) << about;
  EXPECT_EQ(o.oFltBtn.onText(), text(want.faultText)) << about;
}

TEST(Outlets, EveryReplyHasItsButtons) {
  const struct {
    std::int16_t line;
    const char* reply;
    Shown shown;
  } cases[] = {
      {0, "0", kOff},       {0, "1", kOn},          {0, "1Z", kOn},       {0, "C", kCycling},
      {0, "G", fault(74)},  {0, "R", fault(75)},    {0, "S", fault(76)},  {0, "T", fault(77)},
      {0, "V", fault(78)},  {1, "Off", kOff},       {1, "On", kOn},       {1, "CY", kCycling},
      {1, "NG", fault(74)}, {1, "xRPx", fault(75)}, {1, "20", fault(76)}, {1, "On Of", kOff},
  };
  for (const auto& c : cases) {
    Script script(c.line);
    script.main.outlets.oFltBtn.setOnText("before");
    script.peer.answer(c.line == 0 ? "gQ" : "s", c.reply);
    EXPECT_TRUE(readOutlets(script.main)) << c.reply;
    expectShown(script.main, c.shown, c.reply);
  }
}

TEST(Outlets, AnArmedTextStaysWhileTheOutletsAreOn) {
  Script script;
  OutletElements& o = script.main.outlets;
  o.oOnBtn.setOnText("armed");
  o.oCycBtn.setOffText("armed too");
  script.peer.answer("gQ", "1");
  script.peer.answer("gQ", "0");
  script.peer.answer("gQ", "1");
  ASSERT_TRUE(getOutlets(script.main));
  EXPECT_EQ(o.oOnBtn.onText(), "armed");
  EXPECT_EQ(o.oCycBtn.offText(), "armed too");
  ASSERT_TRUE(getOutlets(script.main) && getOutlets(script.main));
  EXPECT_EQ(o.oOnBtn.onText(), script.main.dict[26]);
  EXPECT_EQ(o.oCycBtn.offText(), script.main.dict[28]);
}

TEST(Outlets, AnythingElseFailsAndChangesNothing) {
  const struct {
    std::int16_t line;
    const char* reply;
  } cases[] = {{0, ""}, {0, "X1"}, {0, "c"}, {1, ""}, {1, "O"}, {1, "TV"}, {1, "2 0"}};
  for (const auto& c : cases) {
    Script script(c.line);
    script.main.outlets.oOnBtn.setTexts("before");
    script.main.outlets.oOnBtn.setValue(true);
    script.peer.answer(c.line == 0 ? "gQ" : "s", c.reply);
    EXPECT_FALSE(readOutlets(script.main)) << c.reply;
    EXPECT_TRUE(script.main.outlets.oOnBtn.value()) << c.reply;
    EXPECT_EQ(script.main.outlets.oOnBtn.offText(), "before") << c.reply;
  }
}

TEST(Outlets, SwitchTheDevice) {
  for (const Line line : {Line::Orvantis, Line::Tessara}) {
    World world(simulator::makeProfile(line));
    const bool first = line == Line::Orvantis;
    const struct {
      bool (*set)(Main&);
      const char* command;
      char letter;
    } steps[] = {{setOutletsOff, first ? "s1" : "o", '0'},
                 {setOutletsOn, first ? "s2" : "O", '1'},
                 {setOutletsCyc, first ? "s3" : "c", 'C'}};
    for (const auto& step : steps) {
      world.line.forgetWritten();
      EXPECT_TRUE(step.set(world.main));
      EXPECT_EQ(world.writes(), Commands{step.command});
      world.run(20);
      EXPECT_EQ(world.device.device().outletLetter(), step.letter) << step.command;
    }
  }
}

TEST(Outlets, OnlyTheFirstLineConfirms) {
  World first;
  first.device.addFault({.kind = FaultKind::Refuse});
  EXPECT_FALSE(setOutletsOff(first.main));
  EXPECT_EQ(first.device.device().outletLetter(), '1');
  World second(simulator::makeProfile(Line::Tessara));
  second.device.cutLine();
  EXPECT_TRUE(setOutletsOff(second.main) && setOutletsOn(second.main) && setOutletsCyc(second.main));
}

}  // namespace
}  // namespace zephon
