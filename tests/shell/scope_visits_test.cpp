#include <gtest/gtest.h>

#include "shell/tool.h"

// The scope's page in the middle of its captures: left, switched, closed, lost.

namespace zephon {
namespace {

using simulator::FaultKind;
using testing_support::Tool;

// Long captures of both channels.
void openScope(Tool& tool) {
  tool.press(tool.main.frame.ScopeBtn);
  tool.main.scope.CH2togBtn.setValue(true);
  for (int i = 0; i < 2; ++i) tool.press(tool.main.scope.XoutBtn);
  tool.run(2000);
  ASSERT_EQ(tool.main.capture.capturedMode, 3);
  ASSERT_EQ(tool.main.capture.scopeW.size(), 1024U);
}

TEST(ScopeVisits, LeavingInTheMiddleOfACaptureWindsDownSilently) {
  Tool tool;
  Main& main = tool.main;
  FrameElements& f = main.frame;
  tool.device.hold({.volts = 118});
  for (Button* to : {&f.ScopeBtn, &f.measBtn, &f.setupBtn, &f.dataBtn}) {
    for (double moment = 0; moment < 320; moment += 17) {
      openScope(tool);
      tool.run(moment);
      tool.press(*to);
      tool.run(3000);
      EXPECT_EQ(main.pages.measuring, to == &f.measBtn) << moment;
      EXPECT_EQ(main.pages.setupOn, to == &f.setupBtn) << moment;
      EXPECT_FALSE(main.pages.scopeOn || main.scope.CH1togBtn.visible() || main.timers.scopeTimer.enabled());
      EXPECT_EQ(main.measurement.VlnLbl.caption(), to == &f.measBtn ? "118.00 V" : "V") << moment;
      to->setValue(false);
      tool.run(3000);
      ASSERT_TRUE(tool.idle() && tool.dialogs.shown().empty()) << to->name() << ' ' << moment;
    }
  }
  EXPECT_EQ(tool.line.strayCalls(), 0);
}

TEST(ScopeVisits, ThePageOpenedAgainAtOnceGoesOnCapturing) {
  for (double moment = 0; moment < 320; moment += 23) {
    Tool tool;
    openScope(tool);
    tool.later(moment, [&] {
      tool.press(tool.main.frame.ScopeBtn);
      tool.press(tool.main.frame.ScopeBtn);
    });
    tool.run(5000);
    tool.device.clearLog();
    tool.run(1000);
    EXPECT_GE(tool.device.heard().size(), 3U * 4) << moment;
    EXPECT_EQ(tool.main.capture.failures, 0) << moment;
    ASSERT_TRUE(tool.main.pages.scopeOn && tool.dialogs.shown().empty()) << moment;
  }
}

TEST(ScopeVisits, ALineThatGoesDeadIsToldOnce) {
  Tool tool;
  openScope(tool);
  tool.device.cutLine();
  tool.run(4 * 2100);
  EXPECT_TRUE(tool.dialogs.shown().empty());
  tool.run(3 * 2100);
  EXPECT_EQ(tool.dialogs.texts(), std::vector<std::string>{tool.main.dict[46]});
  EXPECT_FALSE(tool.main.frame.ScopeBtn.value());
  EXPECT_TRUE(tool.idle());
}

TEST(ScopeVisits, APulledCableIsNotWaitedForForEver) {
  Tool tool;
  openScope(tool);
  tool.line.detach(1);
  tool.run(5000);
  EXPECT_EQ(tool.dialogs.texts(), std::vector<std::string>{tool.main.dict[46]});
  EXPECT_TRUE(tool.idle());
}

TEST(ScopeVisits, TheSecondLineHasNoScope) {
  Tool tool(simulator::makeProfile(simulator::Line::Tessara));
  tool.press(tool.main.frame.ScopeBtn);
  tool.run(3000);
  EXPECT_FALSE(tool.main.frame.ScopeBtn.value() || tool.main.frame.ScopeBtn.enabled());
  EXPECT_FALSE(tool.main.pages.scopeOn || tool.main.scope.CH1togBtn.visible());
  EXPECT_TRUE(tool.idle() && tool.dialogs.shown().empty());
  for (const auto& heard : tool.device.heard()) EXPECT_EQ(heard.command.size(), 1U);
  tool.press(tool.main.frame.measBtn);
  EXPECT_TRUE(tool.main.pages.measuring);
}

TEST(ScopeVisits, ClosingInTheMiddleOfACaptureEndsAtOnce) {
  for (double moment = 0.5; moment < 400; moment *= 1.5) {
    Tool tool;
    openScope(tool);
    tool.run(moment);
    formUnload(tool.main);
    const double closed = tool.nowMs();
    tool.run(3000);
    EXPECT_FALSE(tool.port().open || tool.main.exchange.Timer1.enabled()) << moment;
    EXPECT_FALSE(tool.main.timers.scopeTimer.enabled()) << moment;
    EXPECT_TRUE(tool.dialogs.shown().empty()) << moment;
    for (const auto& written : tool.line.written()) EXPECT_LE(Millis(written.at).count(), closed) << moment;
  }
}

}  // namespace
}  // namespace zephon
