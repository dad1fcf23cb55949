#include "display/outlets_page.h"

#include <gtest/gtest.h>

#include "support/bench.h"

namespace zephon {
namespace {

using simulator::FaultKind;
using simulator::Line;
using testing_support::World;

class OutletsPage : public testing::TestWithParam<Line> {
 protected:
  OutletsPage() {
    wireOutletsPage(main_, {[this] {
                      ++lost_;
                      world_.stay(Page::None);
                    }});
    for (Button* button : {&on_, &cycle_}) button->setVisible(true);
    open();
  }
  void open() {
    world_.stay(Page::Outlets);
    startOutletsPage(main_);
    world_.run(500);
  }
  // Something that happens in the middle of the next exchange.
  void inExchange(std::function<void()> what) {
    world_.later(1, [this, what] { main_.exchange.Timer1.enabled() ? what() : inExchange(what); });
  }
  char outlets() { return world_.device.device().outletLetter(); }
  const std::string& text(std::size_t key) { return main_.dict[key]; }

  World world_{simulator::makeProfile(GetParam())};
  Main& main_ = world_.main;
  Button& on_ = main_.outlets.oOnBtn;
  Button& cycle_ = main_.outlets.oCycBtn;
  int lost_ = 0;
};

INSTANTIATE_TEST_SUITE_P(Lines, OutletsPage, testing::Values(Line::Orvantis, Line::Tessara),
                         [](const auto& one) { return one.param == Line::Orvantis ? "First" : "Second"; });

TEST_P(OutletsPage, OffTakesTwoPressesAndOnTakesOne) {
  EXPECT_EQ(on_.caption(), text(26));
  on_.click();
  EXPECT_EQ(on_.caption(), text(27));
  EXPECT_EQ(outlets(), '1');
  world_.run(5000);
  EXPECT_EQ(on_.caption(), text(27)) << "polling keeps the armed press";
  on_.click();
  world_.run(2000);
  EXPECT_EQ(outlets(), '0');
  EXPECT_EQ(on_.caption(), text(72));
  on_.click();
  world_.run(2000);
  EXPECT_EQ(outlets(), '1');
  EXPECT_EQ(on_.caption(), text(26));
  EXPECT_EQ(lost_, 0);
}

TEST_P(OutletsPage, CyclingTakesTwoPresses) {
  cycle_.click();
  EXPECT_EQ(cycle_.caption(), text(29));
  EXPECT_EQ(outlets(), '1');
  cycle_.click();
  world_.run(2000);
  EXPECT_EQ(outlets(), 'C');
  EXPECT_FALSE(on_.enabled() || cycle_.enabled());
  world_.run(10'000);
  EXPECT_EQ(cycle_.caption() + on_.caption(), text(28) + text(26));
}

TEST_P(OutletsPage, WhatTakesAnArmedPressBack) {
  on_.click();
  cycle_.click();  // the other button
  EXPECT_EQ(on_.caption() + cycle_.caption(), text(26) + text(29));
  on_.click();
  EXPECT_EQ(on_.caption() + cycle_.caption(), text(27) + text(28));
  on_.click(MouseButton::Right);
  EXPECT_EQ(on_.caption(), text(26));
  on_.click();
  world_.device.device().forceFault('G');
  world_.run(2000);
  EXPECT_EQ(main_.outlets.oFltBtn.caption(), text(74));
  world_.device.device().forceFault(0);
  world_.run(2000);
  EXPECT_EQ(on_.caption(), text(26));
  cycle_.click();
  world_.stay(Page::None);  // the page is left and opened again
  open();
  EXPECT_EQ(cycle_.caption(), text(28));
  EXPECT_EQ(outlets(), '1');
}

TEST_P(OutletsPage, APollThatFailsIsALostLinkOnceAndSoIsAPress) {
  world_.device.cutLine();
  world_.run(5000);
  EXPECT_EQ(lost_, 1);
  EXPECT_FALSE(main_.pages.outletsOn || main_.timers.outletTimer.enabled());
  world_.device.restoreLine();
  open();
  on_.click();
  world_.device.cutLine();
  on_.click(MouseButton::Right);
  EXPECT_EQ(lost_, 2);
}

// A press in the middle of a poll takes the line from it; the poll's failure is then no news.
TEST_P(OutletsPage, APressInsideAPollIsNoFalseAlarm) {
  world_.device.device().switchOutlets(false);
  world_.run(2000);
  ASSERT_EQ(on_.caption(), text(72));
  world_.device.addFault({.kind = FaultKind::Late, .amount = 100, .commands = 1});
  bool inside = false;
  inExchange([&] {
    inside = true;
    on_.click();
  });
  world_.run(5000);
  ASSERT_TRUE(inside);
  EXPECT_EQ(lost_, 0);
  EXPECT_EQ(outlets(), '1');
  EXPECT_TRUE(main_.timers.outletTimer.enabled());
}

TEST_P(OutletsPage, ARefusedSwitchIsALostLinkWhereItIsConfirmed) {
  on_.click();
  world_.device.addFault({.kind = FaultKind::Refuse, .commands = 1});
  on_.click();
  EXPECT_EQ(lost_, GetParam() == Line::Orvantis ? 1 : 0);
  EXPECT_EQ(outlets(), '1');
}

TEST_P(OutletsPage, APageLeftInAPollOrAPressWindsDownSilently) {
  on_.click();
  world_.later(10, [&] {
    world_.stay(Page::None);
    main_.timers.outletTimer.setEnabled(false);
  });
  on_.click();
  world_.device.cutLine();
  world_.run(3000);
  EXPECT_EQ(lost_, 0);
  EXPECT_FALSE(main_.timers.outletTimer.enabled());
}

}  // namespace
}  // namespace zephon
