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

// The scope's page, on and capturing, with 120 V and 10 A on the line.
class ScopeWorld : public World {
 public:
  ScopeWorld() : World({}, waves()) {
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
  }
  static simulator::Options waves() {
    simulator::Options options = quiet();
    options.waveform = simulator::Waveform::Sine;
    return options;
  }

  // The commands of the captures within so many milliseconds.
  std::size_t commandsWithin(double milliseconds, const std::string& command) {
    device.clearLog();
    run(milliseconds);
    const auto heard = commands();
    EXPECT_EQ(static_cast<std::size_t>(std::count(heard.begin(), heard.end(), command)), heard.size());
    return heard.size();
  }
  std::size_t drawn(std::size_t plot) const {
    const auto& data = graph.plots().at(plot).data;
    return data ? data->size() : 0;
  }
  void press(Button& button) { button.click(); }

  ScopeElements& s = main.scope;
  Capture& c = main.capture;
  Graph& graph = main.frame.CWGraph2;
  int lost = 0;
};

TEST(ScopePage, ChannelButtonsAskForAModeThatTheNextCaptureHas) {
  const struct {
    bool ch1, ch2, ch3;
    int mode;
    const char* command;
    double axisMs;
  } rows[] = {{true, false, false, 1, "gS", 60}, {false, true, false, 2, "gT", 60},
              {true, true, false, 3, "gU", 60},  {false, false, true, 3, "gU", 60},
              {true, false, true, 3, "gU", 60},  {false, false, false, 0, "", 60}};
  for (const auto& row : rows) {
    ScopeWorld world;
    world.run(500);
    EXPECT_EQ(world.c.scopeModeNow, 1) << "the voltage at first";
    world.s.CH1togBtn.setValue(row.ch1);
    world.s.CH2togBtn.setValue(row.ch2);
    world.s.CH3togBtn.setValue(row.ch3);
    EXPECT_EQ(world.c.scopeModeNow, 1) << "not in the middle of a capture";
    world.run(1000);
    EXPECT_EQ(world.c.scopeModeNow, row.mode);
    EXPECT_EQ(world.c.scopeModeNext, 0);
    EXPECT_EQ(world.commandsWithin(300, row.command) > 0, row.mode != 0);
    EXPECT_EQ(world.drawn(0), row.ch1 ? 256U : 0U);
    EXPECT_EQ(world.drawn(1), row.ch2 ? 256U : 0U);
    EXPECT_EQ(world.drawn(2), row.ch3 ? 256U : 0U);
    EXPECT_EQ(world.graph.xRange(), std::pair(0.0, row.axisMs));
    EXPECT_EQ(world.lost, 0);
  }
}

TEST(ScopePage, TheTimeFactorChangesTheCaptureOnlyAboveOne) {
  const std::pair<int, const char*> presses[] = {{-5, "0.75 ms/Div"}, {-1, "3 ms/Div"}, {0, "6 ms/Div"},
                                                 {1, "12 ms/Div"},    {2, "24 ms/Div"}, {3, "24 ms/Div"}};
  for (const auto& [count, caption] : presses) {
    ScopeWorld world;
    world.run(500);
    for (int i = 0; i < std::abs(count); ++i) world.press(count < 0 ? world.s.XinBtn : world.s.XoutBtn);
    world.run(500);
    EXPECT_EQ(world.s.xTimeLbl.caption(), caption);
    const std::size_t blocks = count <= 0 ? 1 : count == 1 ? 2 : 4;
    EXPECT_EQ(world.drawn(0), 256 * blocks) << caption;
    EXPECT_EQ(world.graph.xRange()->second, 60.0 * world.c.xScale);
    // A pause before the command, one behind the reply, the line's time, and nothing else.
    const double line = (2 + 2 + 256.0 * static_cast<double>(blocks)) / 11.52 + 0.3;
    EXPECT_NEAR(static_cast<double>(world.commandsWithin(10'000, "gS")) / static_cast<double>(blocks),
                10'000 / (line + 20), 3);
  }
}

TEST(ScopePage, ScalesStayWithinTheirLimits) {
  ScopeWorld world;
  ScopeElements& s = world.s;
  const struct {
    Button &toggle, &up, &down;
    float& scale;
    const char *first, *largest, *smallest;
  } rows[] = {{s.CH1togBtn, s.p1upBtn, s.p1downBtn, world.c.ch1Scale, "Ch1: 100V/Div", "Ch1: 1600V/Div",
               "Ch1: 6.25V/Div"},
              {s.CH2togBtn, s.p2upBtn, s.p2downBtn, world.c.ch2Scale, "Ch2: 4A/Div", "Ch2: 32A/Div",
               "Ch2: 0.0625A/Div"},
              {s.CH3togBtn, s.p3upBtn, s.p3downBtn, world.c.ch3Scale, "Ch3: 400W/Div", "Ch3: 6400W/Div",
               "Ch3: 6.25W/Div"}};
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    const auto& row = rows[i];
    row.toggle.setValue(false);
    world.press(row.up);
    EXPECT_EQ(row.up.caption(), row.first);
    row.toggle.setValue(true);
    for (int press = 0; press < 12; ++press) world.press(row.up);
    EXPECT_EQ(row.down.caption(), row.largest);
    EXPECT_EQ(world.graph.axes()[i].maximum, row.scale * 4);
    for (int press = 0; press < 12; ++press) world.press(row.down);
    EXPECT_EQ(row.up.caption(), row.smallest);
    EXPECT_EQ(world.graph.axes()[i].minimum, row.scale * -4);
  }
}

TEST(ScopePage, OneShotHoldsThePictureThatGoesBeyondTheLevel) {
  ScopeWorld world;
  world.run(500);
  world.press(world.s.oneShotVbtn);
  const Graph::Cursor armed = world.graph.cursors().at(0);
  EXPECT_TRUE(armed.visible && armed.horizontal && armed.plot == 0U);
  EXPECT_EQ(armed.y, 300);
  EXPECT_EQ(world.graph.plots()[0].annotation, "One Shot 300.000 V");
  world.press(world.s.holdBtn);
  EXPECT_EQ(world.s.holdBtn.caption(), world.main.dict[24]);
  world.run(1000);
  EXPECT_FALSE(world.c.scopeHeld);  // the crests are at 170 V
  clearScopePage(world.main);
  world.s.holdBtn.setTexts("another language's");
  layScopePage(world.main);
  startScopePage(world.main);
  EXPECT_EQ(world.s.holdBtn.caption(), world.main.dict[24]);
  world.graph.dropCursor(0, 0, -160, 0, {});
  EXPECT_EQ(world.c.oneShotLevel, -160);
  EXPECT_EQ(world.graph.plots()[0].annotation, "One Shot -160.000 V");
  world.run(300);
  EXPECT_TRUE(world.c.scopeHeld);
  EXPECT_EQ(world.s.holdBtn.caption(), world.main.dict[25]);
  EXPECT_EQ(world.commandsWithin(3000, ""), 0U);
  EXPECT_TRUE(world.main.frame.saveBtn.visible());
  world.press(world.s.holdBtn);
  EXPECT_GT(world.commandsWithin(1000, "gS"), 5U);
  EXPECT_FALSE(world.main.frame.saveBtn.visible());
  world.press(world.s.oneShotAbtn);
  EXPECT_FALSE(world.s.oneShotVbtn.value());
  EXPECT_EQ(world.graph.cursors()[0].reading, "One Shot 12.000 A");
  EXPECT_EQ(world.graph.cursors()[0].plot, 1U);
  world.press(world.s.holdBtn);
  world.run(500);
  EXPECT_FALSE(world.c.scopeHeld);  // no current is captured
  world.press(world.s.oneShotAbtn);
  EXPECT_FALSE(world.graph.cursors()[0].visible || world.s.holdBtn.value() || world.c.oneShotMode != 0);
}

TEST(ScopePage, OnlyTheFirstHalfTriggersAndALevelOfZeroNever) {
  for (const std::size_t blocks : {1, 2, 4}) {
    for (const std::size_t peak : {0, 1}) {
      Capture capture;
      capture.oneShotMode = 1;
      capture.oneShotLevel = 8;
      capture.scopeV.assign(256 * blocks, 0);
      capture.scopeV[128 * blocks + peak] = 9;
      EXPECT_EQ(triggers(capture), peak == 0) << blocks;
    }
  }
  const struct {
    std::vector<double> volts;
    double level;
    bool fires;
  } rows[] = {{{0, 9, 0, 0}, 8, true},
              {{0, 0, 9, 0}, 8, true},
              {{0, 0, 0, 9}, 8, false},
              {{0, 9}, 8, false},
              {{0, 8, 0, 0}, 8, false},
              {{-9, 0, 0, 0}, -8, true},
              {{-9, 9, 0, 0}, 10, false},
              {{-9, 9}, 0, false},
              {{0, 0, 9, 0, 0}, 8, true},
              {{9}, 8, true},
              {{}, 8, false}};
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

TEST(ScopePage, AHeldPictureIsSavedAsItWasCaptured) {
  ScopeWorld world;
  TempFolder folder;
  world.s.CH2togBtn.setValue(true);
  world.press(world.s.XoutBtn);
  world.run(1000);
  world.press(world.s.holdBtn);
  world.run(600);
  world.s.CH2togBtn.setValue(false);  // for the next capture
  world.dialogs.saveAnswer = folder / "wave.csv";
  world.press(world.main.frame.saveBtn);
  const std::string csv = folder.get("wave.csv");
  EXPECT_NE(csv.find("\r\nScope Data\r\nTime,Voltage,Current,Power\r\n0,0,0,0\r\n0.0003870967"),
            std::string::npos);
  EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 8 + 512);
  world.main.frame.saveBtn.click(MouseButton::Right);
  world.dialogs.saveAnswer = folder / "wave.dat";
  world.press(world.main.frame.saveBtn);
  const std::string dat = folder.get("wave.dat");
  EXPECT_NE(
      dat.find(
          "\r\nScope\r\nMode: 3\r\nX Scale: 2\r\nCH1 Scale: 100\r\nCH2 Scale: 4\r\nCH3 Scale: 400\r\n\r\nVA"),
      std::string::npos);
  EXPECT_TRUE(dat.ends_with(world.main.logs.rawLogBuffer + "\r\n"));
  EXPECT_EQ(world.main.logs.rawLogBuffer.size(), 1538U);
}

TEST(ScopePage, SixFailuresInARowAreALostLinkWhateverTheirCause) {
  const std::pair<FaultKind, int> faults[] = {
      {FaultKind::Silent, 0}, {FaultKind::Short, 1}, {FaultKind::Stall, 0}, {FaultKind::Cut, 100}};
  for (const auto& [kind, amount] : faults) {
    SCOPED_TRACE(static_cast<int>(kind));
    ScopeWorld world;
    world.run(500);
    world.device.addFault({.kind = kind, .amount = amount, .commands = kind == FaultKind::Cut ? 1 : 5});
    world.later(4 * 2100, [&world] { world.device.restoreLine(); });
    world.run(5 * 2100 + 200);
    EXPECT_EQ(world.lost, 0);
    EXPECT_GT(world.commandsWithin(4000, "gS"), 5U) << "five are forgiven";
    EXPECT_EQ(world.c.failures, 0);
    world.device.addFault({.kind = kind, .amount = amount});
    world.run(6 * 2100 + 100);
    EXPECT_EQ(world.lost, 1);
    EXPECT_FALSE(world.main.pages.scopeOn || world.main.timers.scopeTimer.enabled());
  }
}

TEST(ScopePage, ATornCaptureSpoilsNoOther) {
  for (const FaultKind kind : {FaultKind::Short, FaultKind::Doubled, FaultKind::Stray, FaultKind::Garbage}) {
    ScopeWorld world;
    world.press(world.s.XoutBtn);
    world.run(1000);
    const std::vector<double> whole = world.c.scopeV;
    ASSERT_EQ(whole.size(), 512U);
    world.device.addFault({.kind = kind, .commands = 3});
    world.run(5000);
    EXPECT_EQ(world.c.scopeV, whole);
    EXPECT_EQ(world.lost, 0);
  }
}

TEST(ScopePage, AChangeOfTheFormsSizeBreaksACaptureAndCountsForNothing) {
  ScopeWorld world;
  world.run(500);
  for (int i = 0; i < 40; ++i) {
    world.main.formSize.width += 10;
    world.run(15);
    EXPECT_EQ(world.c.failures, 0);
  }
  EXPECT_EQ(world.lost, 0);
  world.device.cutLine();
  world.main.formSize.width += 10;
  world.run(7 * 2100);
  EXPECT_EQ(world.lost, 1) << "the line is dead all the same";
}

TEST(ScopePage, LeavesTheGraphAndTheLogsBytesToTheOtherPages) {
  ScopeWorld world;
  world.run(500);
  EXPECT_EQ(world.main.logs.rawLogBuffer.size(), 258U);
  clearScopePage(world.main);
  EXPECT_TRUE(world.main.logs.rawLogBuffer.empty() && world.graph.plots().empty());
  EXPECT_FALSE(world.graph.visible() || world.s.CH1togBtn.visible());
  world.main.logs.rawLogBuffer = "log";
  for (Button* button : {&world.s.CH2togBtn, &world.s.oneShotVbtn, &world.s.p1upBtn}) button->setValue(true);
  EXPECT_TRUE(world.graph.plots().empty());
  layScopePage(world.main);
  EXPECT_EQ(world.drawn(0), 256U) << "the last capture is there again";
  EXPECT_EQ(world.main.logs.rawLogBuffer.size(), 258U);
  clearScopePage(world.main);
  EXPECT_EQ(world.main.logs.rawLogBuffer, "log");
}

}  // namespace
}  // namespace zephon
