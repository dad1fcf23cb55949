#include "display/outlets_page.h"

#include <gtest/gtest.h>

#include "support/bench.h"

namespace zephon {
namespace {

using simulator::FaultKind;
using simulator::Line;
using testing_support::World;

class OutletsPage : public World, public testing::TestWithParam<Line> {
 protected:
  OutletsPage() : World(simulator::makeProfile(GetParam())) {
    wireOutletsPage(main, {[this] {
                      ++lost;
                      stay(Page::None);
                    }});
    for (Button* button : {&on, &cycle}) button->setVisible(true);
    open();
  }
  void open() {
    stay(Page::Outlets);
    startOutletsPage(main);
    run(500);
  }
  simulator::Device& unit() { return device.device(); }
  const std::string& text(std::size_t key) { return main.dict[key]; }

  Button& on = main.outlets.oOnBtn;
  Button& cycle = main.outlets.oCycBtn;
  int lost = 0;
};

INSTANTIATE_TEST_SUITE_P(Lines, OutletsPage, testing::Values(Line::Orvantis, Line::Tessara));

TEST_P(OutletsPage, OffAndACycleTakeTwoPressesAndOnTakesOne) {
  on.click();
  run(5000);
  EXPECT_EQ(on.caption(), text(27)) << "polling keeps the armed press";
  EXPECT_EQ(unit().outletLetter(), '1');
  on.click();
  run(2000);
  EXPECT_EQ(unit().outletLetter(), '0');
  EXPECT_EQ(on.caption(), text(72));
  on.click();
  run(2000);
  EXPECT_EQ(unit().outletLetter(), '1');
  cycle.click();
  EXPECT_EQ(cycle.caption(), text(29));
  EXPECT_EQ(unit().outletLetter(), '1');
  cycle.click();
  run(2000);
  EXPECT_EQ(unit().outletLetter(), 'C');
  EXPECT_FALSE(on.enabled() || cycle.enabled());
  run(10'000);
  EXPECT_EQ(cycle.caption() + on.caption(), text(28) + text(26));
  EXPECT_EQ(lost, 0);
}

TEST_P(OutletsPage, WhatTakesAnArmedPressBack) {
  on.click();
  cycle.click();  // the other button
  EXPECT_EQ(on.caption() + cycle.caption(), text(26) + text(29));
  on.click();
  EXPECT_EQ(on.caption() + cycle.caption(), text(27) + text(28));
  on.click(MouseButton::Right);
  EXPECT_EQ(on.caption(), text(26));
  on.click();
  unit().forceFault('G');
  run(2000);
  EXPECT_EQ(main.outlets.oFltBtn.caption(), text(74));
  unit().forceFault(0);
  run(2000);
  EXPECT_EQ(on.caption(), text(26));
  cycle.click();
  open();  // left and opened again
  EXPECT_EQ(cycle.caption(), text(28));
  EXPECT_EQ(unit().outletLetter(), '1');
}

TEST_P(OutletsPage, AFailureIsALostLinkOnce) {
  device.cutLine();
  run(5000);
  EXPECT_EQ(lost, 1) << "of a poll";
  device.restoreLine();
  open();
  on.click();
  device.cutLine();
  on.click(MouseButton::Right);
  EXPECT_EQ(lost, 2) << "of a press";
}

TEST_P(OutletsPage, ARefusedSwitchIsALostLinkWhereItIsConfirmed) {
  on.click();
  device.addFault({.kind = FaultKind::Refuse, .commands = 1});
  on.click();
  EXPECT_EQ(lost, GetParam() == Line::Orvantis ? 1 : 0);
  EXPECT_NE(on.onText(), text(27)) << "an armed press counts once";
  EXPECT_EQ(unit().outletLetter(), '1');
}

TEST_P(OutletsPage, APressInsideAPollIsNoFalseAlarm) {
  unit().switchOutlets(false);
  run(2000);
  device.addFault({.kind = FaultKind::Late, .amount = 100, .commands = 1});
  bool inside = false;
  std::function<void()> pressInAPoll = [&] {
    inside = main.exchange.Timer1.enabled();
    inside ? on.click() : later(1, pressInAPoll);
  };
  pressInAPoll();
  run(5000);
  EXPECT_TRUE(inside && main.timers.outletTimer.enabled());
  EXPECT_EQ(lost, 0);
  EXPECT_EQ(unit().outletLetter(), '1');
}

}  // namespace
}  // namespace zephon
