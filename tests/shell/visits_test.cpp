#include <gtest/gtest.h>

#include "shell/tool.h"

// Pages in the middle of something: left, switched, closed, lost.

namespace zephon {
namespace {

using simulator::Line;
using testing_support::Tool;

using D = DataElements;
using F = FrameElements;

simulator::Options longStanding() {
  simulator::Options options = testing_support::World::quiet();
  options.pastSeconds = 2 * 86400;
  options.recordingHours = 10;
  return options;
}

void nothing(Tool& /*tool*/) {}
template <Button F::*page>
void openPage(Tool& tool) {
  tool.press(tool.main.frame.*page);
}
template <Button D::*log>
void download(Tool& tool) {
  (tool.main.data.*log).click();
}
// Long captures of both channels.
void openScope(Tool& tool) {
  tool.press(tool.main.frame.ScopeBtn);
  tool.main.scope.CH2togBtn.setValue(true);
  for (int i = 0; i < 2; ++i) tool.press(tool.main.scope.XoutBtn);
  tool.run(2000);
  ASSERT_EQ(tool.main.capture.scopeW.size(), 1024U);
}
void capture(Tool& tool) {
  tool.run(400);
}

// What goes on, on which page, and how long at most.
struct Doing {
  const char* name;
  Line line;
  Button F::*page;
  void (*begin)(Tool&);
  void (*goOn)(Tool&);
  double milliseconds;
};
constexpr Doing kDoings[] = {
    {"opening measurement", Line::Orvantis, &F::measBtn, nothing, openPage<&F::measBtn>, 1500},
    {"the second line's", Line::Tessara, &F::measBtn, nothing, openPage<&F::measBtn>, 3000},
    {"opening setup", Line::Orvantis, &F::setupBtn, nothing, openPage<&F::setupBtn>, 1500},
    {"opening outlets", Line::Orvantis, &F::outletsBtn, nothing, openPage<&F::outletsBtn>, 1500},
    {"opening data", Line::Orvantis, &F::dataBtn, nothing, openPage<&F::dataBtn>, 1500},
    {"capturing", Line::Orvantis, &F::ScopeBtn, openScope, capture, 400},
    {"loading events", Line::Orvantis, &F::dataBtn, openPage<&F::dataBtn>, download<&D::tsDataBtn>, 1100},
    {"importing events", Line::Tessara, &F::dataBtn, openPage<&F::dataBtn>, download<&D::tsDataBtn>, 1000},
    {"loading history", Line::Orvantis, &F::dataBtn, openPage<&F::dataBtn>, download<&D::histDataBtn>, 9900},
    {"loading a chart", Line::Orvantis, &F::dataBtn, openPage<&F::dataBtn>, download<&D::cmDataBtn>, 9000}};

// Whatever page is wanted instead at whatever moment: nothing is told, nothing is left over, and no call
// meets a port that is not open. Where no user can press, since the page buttons are held, a lost link can.
TEST(Leaving, InTheMiddleOfAnythingWindsDownSilently) {
  for (const Doing& doing : kDoings) {
    Tool tool(simulator::makeProfile(doing.line), longStanding());
    tool.device.hold({.volts = 118});
    Main& main = tool.main;
    FrameElements& f = main.frame;
    Button& from = f.*doing.page;
    for (Button* to : {&from, &f.measBtn, &f.setupBtn, &f.comBtn}) {
      for (double moment = 0.05; moment < doing.milliseconds; moment *= 1.7) {
        SCOPED_TRACE(std::string(doing.name) + ' ' + to->name() + ' ' + std::to_string(moment));
        doing.begin(tool);
        tool.later(moment, [to] { to->setValue(!to->value()); });
        doing.goOn(tool);
        tool.run(doing.milliseconds + 5000);  // the rest of a log is waited for
        EXPECT_EQ(main.pages.measuring, to == &f.measBtn && to != &from);
        EXPECT_EQ(main.pages.setupOn, to == &f.setupBtn && to != &from);
        if (main.pages.measuring && doing.line == Line::Orvantis) {
          EXPECT_EQ(main.measurement.VlnLbl.caption(), "118.00 V");
        }
        EXPECT_FALSE(main.scope.CH1togBtn.visible() || main.data.tsDataBtn.visible() ||
                     main.pages.dataPageActive);
        EXPECT_FALSE(main.timers.scopeTimer.enabled() || main.data.cancelDataBtn.visible());
        EXPECT_TRUE(f.measBtn.enabled() && f.dataBtn.enabled() && f.helpBtn.enabled());
        for (Button* page : {&from, to}) page->setValue(false);
        tool.run(doing.milliseconds + 5000);
        ASSERT_TRUE(tool.idle() && tool.dialogs.shown().empty());
        if (testing::Test::HasFailure()) return;
      }
    }
    EXPECT_EQ(tool.line.strayCalls(), 0);
  }
}

TEST(Leaving, TheScopeOpenedAgainAtOnceGoesOnCapturing) {
  for (double moment = 0; moment < 320; moment += 23) {
    Tool tool;
    openScope(tool);
    tool.later(moment, [&] {
      for (int i = 0; i < 2; ++i) tool.press(tool.main.frame.ScopeBtn);
    });
    tool.run(5000);
    tool.device.clearLog();
    tool.run(1000);
    EXPECT_GE(tool.device.heard().size(), 3U * 4) << moment;
    ASSERT_TRUE(tool.main.capture.failures == 0 && tool.dialogs.shown().empty()) << moment;
  }
}

TEST(Closing, EndsTheMiddleOfAnythingWithinASecond) {
  for (const Doing& doing : kDoings) {
    for (double moment = 0.05; moment < doing.milliseconds; moment *= 1.9) {
      SCOPED_TRACE(std::string(doing.name) + ' ' + std::to_string(moment));
      Tool tool(simulator::makeProfile(doing.line), longStanding());
      doing.begin(tool);
      const double closed = tool.nowMs() + moment;
      tool.later(moment, [&] { formUnload(tool.main); });
      doing.goOn(tool);
      tool.run(doing.milliseconds + 1000);
      formUnload(tool.main);  // the stack has unwound
      EXPECT_FALSE(tool.port().open || tool.main.exchange.Timer1.enabled());
      EXPECT_TRUE(tool.dialogs.shown().empty());
      for (const auto& one : tool.line.written()) ASSERT_LE(Millis(one.at).count(), closed + 1000);
    }
  }
}

TEST(Closing, LeavesNoDeviceWithHalfAWrite) {
  for (double moment = 1; moment < 700; moment += 13) {
    SCOPED_TRACE(moment);
    Tool tool;
    tool.press(tool.main.frame.setupBtn);
    tool.line.forgetWritten();
    tool.later(moment, [&] { formUnload(tool.main); });
    tool.press(moment < 350 ? tool.main.setup.updateLimsBtn : tool.main.setup.setTimeBtn);
    tool.run(3000);
    EXPECT_TRUE(tool.main.ending);
    const auto writes = tool.writes();
    for (std::size_t i = 0; i < writes.size(); ++i) {
      const std::size_t values = writes[i] == "s;" ? 7 : writes[i].size() == 2 && writes[i][0] == 's' ? 1 : 0;
      ASSERT_LT(i + values, writes.size()) << writes[i];
      for (std::size_t k = 1; k <= values; ++k) EXPECT_EQ(writes[i + k].size(), 1U) << writes[i];
    }
  }
}

TEST(SetupVisit, SavesWhatWasReadAsAReport) {
  Tool tool;
  tool.dialogs.saveAnswer = tool.settings / "setup.txt";
  tool.press(tool.main.frame.setupBtn);
  tool.press(tool.main.frame.saveBtn);
  const std::string report = tool.settings.get("setup.txt");
  EXPECT_TRUE(report.starts_with("Orvantis PCS Setup Report\r\n")) << report;
  EXPECT_NE(report.find("Over Voltage Shutdown: 150 V\r\n"), std::string::npos) << report;
  tool.press(tool.main.frame.setupBtn);
  EXPECT_FALSE(tool.main.frame.saveBtn.visible());
}

// On the data page, with a device and with the log that was saved of it.
TEST(ExpertVisit, AnalysesTheLogOnThePageAndListsWhatItFound) {
  simulator::Options overloaded;
  overloaded.site = simulator::Story::OverloadedCircuit;
  overloaded.pastSeconds = 20 * 86'400;
  Tool tool({}, overloaded);
  Main& main = tool.main;
  FrameElements& f = main.frame;
  tool.press(f.dataBtn);
  tool.press(main.data.histDataBtn);
  tool.press(f.expertBtn);
  const std::vector<std::string> found = f.findingsList.items();
  ASSERT_TRUE(f.findingsList.visible() && found.size() > 2);
  EXPECT_EQ(found[0], "01. " + main.dict[215 + 3]);
  tool.dialogs.saveAnswer = tool.dialogs.openAnswer = tool.settings / "history.csv";
  tool.press(f.saveBtn);
  tool.dialogs.saveAnswer.reset();
  tool.press(f.dataBtn);
  EXPECT_TRUE(!f.findingsList.visible() && f.findingsList.items().empty() && !f.expertBtn.visible());
  tool.line.detach(1);
  tool.press(f.dataBtn);
  tool.press(main.data.histDataBtn);
  tool.press(f.expertBtn);
  EXPECT_EQ(f.findingsList.items(), found) << "in the saved log";
}

}  // namespace
}  // namespace zephon
