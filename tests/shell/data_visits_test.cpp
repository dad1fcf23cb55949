#include <gtest/gtest.h>

#include "shell/tool.h"

// The data page in the middle of its downloads: left, switched, closed, lost.

namespace zephon {
namespace {

using simulator::FaultKind;
using testing_support::Tool;

simulator::Options longStanding() {
  simulator::Options options;
  options.pastSeconds = 2 * 86400;
  options.recordingHours = 10;
  return options;
}

using D = DataElements;
struct Log {
  Button D::*button;
  double milliseconds;
};
constexpr Log kLogs[] = {{&D::tsDataBtn, 1100}, {&D::histDataBtn, 9900}, {&D::cmDataBtn, 9000}};

class DataVisits : public ::testing::Test {
 protected:
  Tool tool{{}, longStanding()};
  Main& main = tool.main;
  FrameElements& f = tool.main.frame;
  D& d = tool.main.data;
};

// What no user can press, since the page buttons are held, the program can: a lost link does.
TEST_F(DataVisits, LeavingInTheMiddleOfALogWindsDownSilently) {
  for (const Log& log : kLogs) {
    for (Button* to : {&f.dataBtn, &f.setupBtn}) {
      for (double moment = 1; moment < log.milliseconds; moment *= 3.1) {
        tool.press(f.dataBtn);
        tool.later(moment, [&] { to->setValue(!to->value()); });
        (d.*log.button).click();
        tool.run(20'000);  // the rest of the log is waited for
        EXPECT_EQ(main.pages.setupOn, to == &f.setupBtn) << moment;
        EXPECT_FALSE(main.pages.dataOn || d.tsDataBtn.visible() || d.cancelDataBtn.visible()) << moment;
        EXPECT_TRUE(f.measBtn.enabled() && f.dataBtn.enabled() && f.helpBtn.enabled()) << moment;
        f.setupBtn.setValue(false);
        tool.run(20'000);
        ASSERT_TRUE(tool.idle() && tool.dialogs.shown().empty()) << moment;
      }
    }
  }
  EXPECT_EQ(tool.line.strayCalls(), 0);
}

TEST_F(DataVisits, ClosingInTheMiddleOfALogEndsWithinASecond) {
  for (const Log& log : kLogs) {
    for (double moment = 1; moment < log.milliseconds; moment *= 2.7) {
      Tool own({}, longStanding());
      own.press(own.main.frame.dataBtn);
      const double closed = own.nowMs() + moment;
      own.later(moment, [&] { formUnload(own.main); });
      (own.main.data.*log.button).click();
      EXPECT_LT(own.nowMs(), closed + 1000) << moment;
      formUnload(own.main);
      EXPECT_FALSE(own.port().open || own.main.exchange.Timer1.enabled()) << moment;
      EXPECT_TRUE(own.dialogs.shown().empty()) << moment;
    }
  }
}

TEST_F(DataVisits, ALostLinkIsToldOnceWithHowMuchCameAndFilesCanStillBeOpened) {
  tool.press(f.dataBtn);
  tool.device.addFault({.kind = FaultKind::Cut, .amount = 8195, .only = "gE"});
  d.tsDataBtn.click();
  ASSERT_EQ(tool.dialogs.texts(), std::vector<std::string>{main.dict[46]});
  EXPECT_EQ(tool.dialogs.shown()[0].detail, "8195 of 8196 bytes came.");
  EXPECT_TRUE(tool.idle());
  tool.press(f.dataBtn);
  EXPECT_TRUE(main.pages.dataOn);
  tool.dialogs.openAnswer = tool.settings.put("none.csv", "nothing");
  d.histDataBtn.click();
  EXPECT_EQ(tool.dialogs.texts().back(), main.dict[169]);
  EXPECT_TRUE(main.pages.dataOn);
}

}  // namespace
}  // namespace zephon
