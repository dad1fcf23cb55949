#include "display/scope_page.h"

#include <gtest/gtest.h>

#include "display/log_views.h"
#include "display/saving.h"
#include "support/bench.h"
#include "support/temp_folder.h"

namespace zephon {
namespace {

using simulator::FaultKind;
using testing_support::World;

// The scope's page, on and capturing, with a sine of 120 V and 10 A on the line.
class ScopeWorld : public World {
 public:
  ScopeWorld() {
    device.hold({.volts = 120, .amps = 10, .hertz = 60, .powerFactor = 1});
    wireScopePage(main, {[this] {
                    ++lost;
                    clearScopePage(main);
                  }});
    wireSaving(main);
    wireLogViews(main);
    stay(Page::Scope);
    main.frame.ScopeBtn.setValue(true);
    layScopePage(main);
    startScopePage(main);
    run(500);
  }
  // The commands of the captures within so many milliseconds.
  std::size_t commandsWithin(double milliseconds, const std::string& command) {
    device.clearLog();
    run(milliseconds);
    EXPECT_EQ(static_cast<std::size_t>(asked(command)), device.heard().size());
    return device.heard().size();
  }
  std::size_t drawn(std::size_t plot) const {
    const auto& data = graph.plots().at(plot).data;
    return data ? data->size() : 0;
  }
  ScopeElements& s = main.scope;
  Capture& c = main.capture;
  Graph& graph = main.frame.CWGraph2;
  int lost = 0;
};
class ScopePage : public ScopeWorld, public testing::Test {};

TEST(ScopeChannels, AskForAModeThatTheNextCaptureHas) {
  const struct {
    bool ch1, ch2, ch3;
    int mode;
    const char* command;
  } rows[] = {{false, true, false, 2, "gT"},
              {true, true, false, 3, "gU"},
              {false, false, true, 3, "gU"},
              {false, false, false, 0, ""}};
  for (const auto& row : rows) {
    ScopeWorld world;
    world.s.CH1togBtn.setValue(row.ch1);
    world.s.CH2togBtn.setValue(row.ch2);
    world.s.CH3togBtn.setValue(row.ch3);
    world.run(1000);
    EXPECT_EQ(world.c.scopeModeNow, row.mode);
    EXPECT_EQ(world.commandsWithin(300, row.command) > 0, row.mode != 0);
    const bool on[] = {row.ch1, row.ch2, row.ch3};
    for (std::size_t plot = 0; plot < 3; ++plot) EXPECT_EQ(world.drawn(plot), on[plot] ? 256U : 0U);
    EXPECT_EQ(world.lost, 0);
  }
}

TEST(ScopeTime, ChangesTheCaptureOnlyAboveAFactorOfOne) {
  const std::tuple<int, const char*, double> presses[] = {
      {-5, "0.75 ms/Div", 1}, {0, "6 ms/Div", 1}, {1, "12 ms/Div", 2}, {3, "24 ms/Div", 4}};
  for (const auto& [count, caption, blocks] : presses) {
    ScopeWorld world;
    for (int i = 0; i < std::abs(count); ++i) (count < 0 ? world.s.XinBtn : world.s.XoutBtn).click();
    world.run(500);
    EXPECT_EQ(world.s.xTimeLbl.caption(), caption);
    EXPECT_EQ(static_cast<double>(world.drawn(0)), 256 * blocks) << caption;
    EXPECT_EQ(world.graph.xRange(), std::pair(0.0, 60.0 * world.c.xScale));
    // A pause before the command, one behind the reply, the line's time, and nothing else.
    const double line = (2 + 2 + 256 * blocks) / 11.52 + 0.3;
    EXPECT_NEAR(static_cast<double>(world.commandsWithin(10'000, "gS")) / blocks, 10'000 / (line + 20), 3);
  }
}

TEST_F(ScopePage, ScalesStayWithinTheirLimits) {
  const struct {
    Button &toggle, &up, &down;
    float& scale;
    const char *largest, *smallest;
  } rows[] = {{s.CH1togBtn, s.p1upBtn, s.p1downBtn, c.ch1Scale, "Ch1: 1600V/Div", "Ch1: 6.25V/Div"},
              {s.CH2togBtn, s.p2upBtn, s.p2downBtn, c.ch2Scale, "Ch2: 32A/Div", "Ch2: 0.0625A/Div"},
              {s.CH3togBtn, s.p3upBtn, s.p3downBtn, c.ch3Scale, "Ch3: 6400W/Div", "Ch3: 6.25W/Div"}};
  for (std::size_t i = 0; i < 3; ++i) {
    const auto& row = rows[i];
    row.toggle.setValue(true);
    for (int press = 0; press < 12; ++press) row.up.click();
    EXPECT_EQ(row.down.caption(), row.largest);
    EXPECT_EQ(graph.axes()[i].maximum, row.scale * 4);
    for (int press = 0; press < 12; ++press) row.down.click();
    EXPECT_EQ(row.up.caption(), row.smallest);
    EXPECT_EQ(graph.axes()[i].minimum, row.scale * -4);
  }
}

TEST_F(ScopePage, OneShotHoldsThePictureThatGoesBeyondTheLevel) {
  s.oneShotVbtn.click();
  const Graph::Cursor armed = graph.cursors().at(0);
  EXPECT_TRUE(armed.visible && armed.horizontal && armed.plot == 0U && armed.y == 300);
  s.holdBtn.click();
  run(1000);
  EXPECT_FALSE(c.scopeHeld) << "the crests are at 170 V";
  EXPECT_EQ(s.holdBtn.caption(), main.dict[24]);
  graph.dropCursor(0, 0, -160, 0, {});
  EXPECT_EQ(graph.plots()[0].annotation, "One Shot -160.000 V");
  run(100);
  EXPECT_TRUE(c.scopeHeld && main.frame.saveBtn.visible());
  EXPECT_EQ(commandsWithin(3000, ""), 0U);
  s.holdBtn.click();
  EXPECT_GT(commandsWithin(1000, "gS"), 5U);
  EXPECT_FALSE(main.frame.saveBtn.visible());
  s.oneShotAbtn.click();
  EXPECT_TRUE(!s.oneShotVbtn.value() && graph.cursors()[0].plot == 1U);
  EXPECT_EQ(graph.cursors()[0].reading, "One Shot 12.000 A");
}

TEST(OneShot, OnlyTheFirstHalfTriggersAndALevelOfZeroNever) {
  const struct {
    std::vector<double> volts;
    double level;
    bool fires;
  } rows[] = {{{0, 0, 9, 0}, 8, true},   {{0, 0, 0, 9}, 8, false}, {{0, 8, 0, 0}, 8, false},
              {{-9, 0, 0, 0}, -8, true}, {{-9, 9}, 0, false},      {{0, 0, 9, 0, 0}, 8, true}};
  for (const auto& row : rows) {
    Capture capture;
    capture.scopeV = row.volts;
    capture.oneShotLevel = row.level;
    EXPECT_FALSE(triggers(capture));
    capture.oneShotMode = 1;
    EXPECT_EQ(triggers(capture), row.fires) << row.level;
    capture.oneShotMode = 2;
    EXPECT_FALSE(triggers(capture)) << "no current was captured";
  }
}

TEST_F(ScopePage, AHeldPictureIsSavedAsItWasCaptured) {
  const TempFolder folder;
  s.CH2togBtn.setValue(true);
  s.XoutBtn.click();
  run(1000);
  s.holdBtn.click();
  run(600);
  s.CH2togBtn.setValue(false);  // for the next capture
  dialogs.saveAnswer = folder / "wave.csv";
  main.frame.saveBtn.click();
  const std::string csv = folder.get("wave.csv");
  EXPECT_NE(csv.find("Time,Voltage,Current,Power\r\n0,0,0,0\r\n0.0003870967"), std::string::npos);
  EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 8 + 512);
  main.frame.saveBtn.click(MouseButton::Right);
  dialogs.saveAnswer = folder / "wave.dat";
  main.frame.saveBtn.click();
  const std::string dat = folder.get("wave.dat");
  EXPECT_NE(dat.find("Mode: 3\r\nX Scale: 2\r\n"), std::string::npos);
  EXPECT_TRUE(dat.ends_with(main.logs.rawLogBuffer + "\r\n"));
}

TEST(ScopeFailures, SixInARowAreALostLinkWhateverTheirCause) {
  const std::pair<FaultKind, int> faults[] = {
      {FaultKind::Silent, 0}, {FaultKind::Short, 1}, {FaultKind::Stall, 0}, {FaultKind::Cut, 100}};
  for (const auto& [kind, amount] : faults) {
    SCOPED_TRACE(static_cast<int>(kind));
    ScopeWorld world;
    world.device.addFault({.kind = kind, .amount = amount, .commands = kind == FaultKind::Cut ? 1 : 5});
    world.later(4 * 2100, [&world] { world.device.restoreLine(); });
    world.run(5 * 2100 + 200);
    EXPECT_EQ(world.lost, 0);
    EXPECT_GT(world.commandsWithin(4000, "gS"), 5U) << "five are forgiven";
    world.device.addFault({.kind = kind, .amount = amount});
    world.run(6 * 2100 + 100);
    EXPECT_EQ(world.lost, 1);
    EXPECT_FALSE(world.main.pages.scopeOn || world.main.timers.scopeTimer.enabled());
  }
}

TEST(ScopeFailures, ATornCaptureSpoilsNoOther) {
  for (const FaultKind kind : {FaultKind::Short, FaultKind::Doubled, FaultKind::Stray, FaultKind::Garbage}) {
    ScopeWorld world;
    world.s.XoutBtn.click();
    world.run(1000);
    const std::vector<double> whole = world.c.scopeV;
    world.device.addFault({.kind = kind, .commands = 3});
    world.run(5000);
    EXPECT_EQ(world.c.scopeV, whole);
  }
}

TEST_F(ScopePage, AChangeOfTheFormsSizeBreaksACaptureAndCountsForNothing) {
  for (int i = 0; i < 40; ++i) {
    main.formSize.width += 10;
    run(15);
    EXPECT_EQ(c.failures, 0);
  }
  EXPECT_EQ(lost, 0);
}

TEST_F(ScopePage, LeavesTheGraphAndTheLogsBytesToTheOtherPages) {
  clearScopePage(main);
  EXPECT_TRUE(main.logs.rawLogBuffer.empty() && !graph.visible());
  main.logs.rawLogBuffer = "log";
  s.CH2togBtn.setValue(true);
  layScopePage(main);
  EXPECT_EQ(drawn(0), 256U) << "the last capture is there again";
  clearScopePage(main);
  EXPECT_EQ(main.logs.rawLogBuffer, "log");
}

}  // namespace
}  // namespace zephon
