#include "display/chart_page.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "display/log_views.h"
#include "protocol/asking.h"
#include "protocol/day_serial.h"
#include "protocol/stay.h"
#include "support/bench.h"
#include "support/temp_folder.h"

namespace zephon {
namespace {

using simulator::Fault;
using simulator::FaultKind;
using testing_support::World;

// The page as it is once its button has opened it.
struct ChartPage : World {
  explicit ChartPage(const simulator::Profile& profile = {}) : World(profile) {
    wireChartPage(main, {[this] { ++lost; }});
    wireLogViews(main);
    main.frame.ChartBtn.setValue(true);
    open();
  }
  void open() {
    stay(Page::Chart);
    for (Element* element : main.elements.all()) element->setVisible(true);
    startChartPage(main);
  }
  void close() {
    stay(Page::None);
    main.timers.chartTimer.setEnabled(false);
    clearChartPage(main);
  }
  void silence(const std::string& command, int commands = Fault::kEvery) {
    device.addFault({.kind = FaultKind::Silent, .only = command, .commands = commands});
  }
  std::ptrdiff_t asked(const std::string& command) const {
    const auto heard = commands();
    return std::count(heard.begin(), heard.end(), command);
  }
  std::size_t rows() const { return main.logs.chartData.size() - 1; }
  const std::array<double, 9>& row(std::size_t i) const { return main.logs.chartData[i]; }

  ChartElements& c = main.chart;
  Graph& graph = main.frame.CWGraph2;
  int lost = 0;
};

TEST(ChartPage, FillsARowATickInTheOrderOfTheQuantities) {
  ChartPage page;
  page.device.hold({.volts = 118.5,
                    .amps = 3.25,
                    .watts = 320,
                    .neutralGroundVolts = 0.5,
                    .hertz = 60,
                    .powerFactor = 0.75,
                    .crestFactor = 1.414});
  EXPECT_EQ(page.main.logs.chartData.size(), 1u);
  const double begun = dateSerial(page.clock.now().local);
  page.run(1100);
  ASSERT_EQ(page.rows(), 1u);
  EXPECT_EQ(page.commands(), (std::vector<std::string>{"g4", "g6", "g8", "g5", "g;", "g:", "g7", "g9"}));
  const double expected[] = {
      begun + 1 / 86400.0, 118.5, 3.25, 320, 0.5, 60, 0.75, 1.414, page.device.device().kilowattHours()};
  const double off[] = {1e-7, 0.01, 0.005, 4, 0.005, 0.13, 0.02, 0.01, 0.001};
  for (std::size_t i = 0; i < 9; ++i) EXPECT_NEAR(page.row(0)[i], expected[i], off[i]) << i;
  page.run(10'000);
  EXPECT_GE(page.rows(), 9u);
  EXPECT_EQ(page.graph.plots()[0].annotation, "118.5 V");
  EXPECT_EQ(page.graph.plots()[5].annotation, "0.75");
  EXPECT_TRUE(page.graph.plots()[7].annotation.ends_with(" kWh"));
  const PlotData& volts = *page.graph.plots()[0].data;
  EXPECT_EQ(volts.size(), page.rows());
  EXPECT_EQ(volts.y(3), page.row(3)[1]);
  EXPECT_EQ(page.graph.cursors().size(), 2u);
}

TEST(ChartPage, TheSlidersSecondsAreAtLeastOne) {
  ChartPage page;
  const struct {
    double value;
    double interval;
    const char* caption;
  } rows[] = {{60, 60'000, "(60 x sec)"},
              {0, 1000, "(1 x sec)"},
              {5, 5000, "(5 x sec)"},
              {-3, 1000, "(1 x sec)"},
              {1.5, 1500, "(1.5 x sec)"}};
  for (const auto& one : rows) {
    page.c.chartIntervalSlide.setValue(one.value);
    EXPECT_EQ(page.main.timers.chartTimer.interval(), one.interval);
    EXPECT_EQ(page.c.chartIntervalSlide.tooltip(), page.main.dict[45] + ' ' + one.caption);
  }
  page.run(1499);
  EXPECT_TRUE(page.commands().empty());
  page.later(5, [&] {  // in the middle of the tick
    page.c.chartIntervalSlide.setValue(2);
    EXPECT_FALSE(page.main.timers.chartTimer.enabled());
  });
  page.run(200);
  EXPECT_EQ(page.rows(), 1u);
  page.run(1700);
  EXPECT_EQ(page.rows(), 1u);
  page.run(200);
  EXPECT_EQ(page.rows(), 2u);
}

TEST(ChartPage, AnswersInPartAreAskedForAgainAndNoneAreAGap) {
  const auto silentButFor = [](ChartPage& page, std::size_t answered, int commands) {
    const std::string all[] = {"g4", "g6", "g8", "g5", "g;", "g:", "g7", "g9"};
    for (std::size_t i = answered; i < 8; ++i) page.silence(all[i], commands);
  };
  {
    SCOPED_TRACE("seven fail");
    ChartPage page;
    page.run(1200);
    silentButFor(page, 1, Fault::kEvery);
    page.device.clearLog();
    page.run(8000);
    EXPECT_EQ(page.asked("g4"), 4);
    EXPECT_EQ(page.asked("g9"), 4);
    EXPECT_EQ(page.lost, 1);
    EXPECT_FALSE(page.main.pages.chartOn || page.main.timers.chartTimer.enabled());
    EXPECT_EQ(page.rows(), 1u);
  }
  {
    SCOPED_TRACE("three tries fail");
    ChartPage page;
    page.silence("g5", 3);
    page.run(2000);
    EXPECT_EQ(page.asked("g4"), 4);
    EXPECT_EQ(page.rows(), 1u);
    EXPECT_GT(page.row(0)[4], 0);
  }
  {
    SCOPED_TRACE("all fail, in the second try");
    ChartPage page;
    silentButFor(page, 1, 2);
    page.device.addFault({.kind = FaultKind::Silent, .only = "g4", .commands = 1, .afterSeconds = 1.1});
    page.run(3700);
    EXPECT_EQ(page.asked("g4"), 3);
    ASSERT_EQ(page.rows(), 2u);
    EXPECT_EQ(page.row(0)[1], 0);
    EXPECT_GT(page.row(1)[1], 0);
    EXPECT_EQ(page.lost, 0);
  }
}

TEST(ChartPage, AGapIsARowOfZerosThatBreaksTheLine) {
  ChartPage page;
  page.run(1100);
  page.device.cutLine();
  page.run(2000);
  ASSERT_EQ(page.rows(), 2u);
  EXPECT_NEAR(page.row(1)[0], page.row(0)[0] + 1 / 86400.0, 1e-6);
  for (std::size_t i = 1; i < 9; ++i) EXPECT_EQ(page.row(1)[i], 0) << i;
  EXPECT_TRUE(std::isnan(page.graph.plots()[0].data->y(1)));
  EXPECT_NE(page.main.frame.adviceLbl.caption(), "");
  EXPECT_EQ(page.main.readings.lastVln, 0.0f);
  page.device.restoreLine();
  page.run(2000);
  ASSERT_GE(page.rows(), 3u);
  EXPECT_FALSE(std::isnan(page.graph.plots()[0].data->y(2)));
  EXPECT_EQ(page.main.frame.adviceLbl.caption(), "");
  EXPECT_EQ(page.lost, 0);
}

TEST(ChartPage, TheSecondLineIsAskedForWhatItHas) {
  using Lines = std::vector<std::string>;
  const struct {
    const char* firmware;
    int rating;
    bool neutral;
  } rows[] = {{"2.00", 120, true}, {"1.67", 120, false}, {"2*14", 240, false}};
  for (const auto& one : rows) {
    SCOPED_TRACE(one.firmware);
    simulator::Profile profile = simulator::makeProfile(simulator::Line::Tessara, one.rating);
    profile.firmware = one.firmware;
    ChartPage page(profile);
    page.device.hold({.volts = one.rating * 0.95, .neutralGroundVolts = 12});
    page.run(14'000);
    ASSERT_GE(page.rows(), 1u);
    Lines heard = page.commands();
    EXPECT_EQ(heard.front(), "s");
    heard.erase(std::unique(heard.begin(), heard.end()), heard.end());
    heard.resize(one.neutral ? 3 : 2);
    EXPECT_EQ(heard, one.neutral ? (Lines{"s", "v", "p"}) : (Lines{"s", "v"}));
    EXPECT_NEAR(page.row(0)[1], one.rating * 0.95, 1.5);
    EXPECT_NEAR(page.row(0)[4], one.neutral ? 12 : 0, 1.5);
    EXPECT_EQ(page.graph.plots()[3].visible, one.neutral);
    EXPECT_EQ(page.graph.axes()[3].visible, one.neutral);
    EXPECT_TRUE(page.graph.plots()[0].visible && page.c.euChartBtn.value());
    for (const std::size_t i : {1, 2, 4, 5, 6, 7}) EXPECT_FALSE(page.graph.plots()[i].visible) << i;
    EXPECT_EQ(page.graph.plots()[0].annotation.find('.'), std::string::npos);
    page.device.cutLine();  // all that this device is asked have failed then
    const std::size_t before = page.rows();
    page.run(30'000);
    EXPECT_EQ(page.row(before + 1)[1], 0);
    EXPECT_EQ(page.lost, 0);
  }
}

TEST(ChartPage, AButtonShowsItsPlotAndAxisWhileThePageIsOn) {
  ChartPage page;
  page.run(1100);
  const auto shown = [&] {
    std::string text;
    for (const auto& plot : page.graph.plots()) text += plot.visible ? '1' : '0';
    text += ' ';
    for (const auto& axis : page.graph.axes()) text += axis.visible ? '1' : '0';
    return text;
  };
  EXPECT_EQ(shown(), "11111111 1111111");
  page.c.vlnChartBtn.click();
  page.c.cfChartBtn.click();
  EXPECT_EQ(shown(), "01111101 0111111");
  page.c.pfChartBtn.click();
  EXPECT_EQ(shown(), "01111001 0111101");
  page.main.frame.ChartBtn.setValue(false);
  page.c.euChartBtn.click();
  EXPECT_EQ(shown(), "01111001 0111101");
  page.main.frame.ChartBtn.setValue(true);
  page.open();
  EXPECT_TRUE(page.c.euChartBtn.value());
  EXPECT_EQ(shown(), "01111001 0111101");
  for (Button* on :
       {&page.c.aChartBtn, &page.c.pChartBtn, &page.c.vngChartBtn, &page.c.fChartBtn, &page.c.euChartBtn})
    on->click();
  page.open();
  EXPECT_EQ(shown(), "00000000 0000000");
}

TEST(ChartPage, TheRecordingOutlivesThePageAndTheClock) {
  ChartPage page;
  page.run(5400);
  const std::size_t before = page.rows();
  page.silence("g6", 1);
  page.later(700, [&] {
    EXPECT_TRUE(page.main.recording.ticking);
    page.close();
  });
  page.run(60'000);
  EXPECT_EQ(page.rows(), before);
  EXPECT_EQ(page.lost, 0);
  page.open();
  EXPECT_EQ(page.graph.plots()[0].data->size(), before);
  page.clock.setMinutesEast(testing_support::Bench::kMinutesEast - 60);
  page.run(3200);
  ASSERT_EQ(page.rows(), before + 3);
  const PlotData& volts = *page.graph.plots()[0].data;
  EXPECT_LT(page.row(before)[0], page.row(before - 1)[0]);
  for (std::size_t i = 1; i < volts.size(); ++i) EXPECT_GE(volts.x(i), volts.x(i - 1)) << i;
  page.clock.setMinutesEast(testing_support::Bench::kMinutesEast);
  page.run(2000);
  EXPECT_EQ(volts.x(volts.size() - 1), page.row(volts.size() - 1)[0]);
}

TEST(ChartPage, APausedViewKeepsWhatACursorReadOff) {
  ChartPage page;
  page.run(2100);
  page.graph.pauseView(true);
  page.graph.dropCursor(0, page.row(1)[0], page.row(1)[1], 1, 1);
  const std::string read = page.graph.plots()[1].annotation;
  EXPECT_TRUE(read.ends_with(" A"));
  page.run(3000);
  EXPECT_GE(page.rows(), 4u);
  EXPECT_EQ(page.graph.plots()[1].annotation, read);
  page.graph.pauseView(false);
  page.run(1100);
  EXPECT_NE(page.graph.plots()[1].annotation, read);
}

TEST(ChartPage, GoesOnWhileABoxStandsInTheMiddleOfATick) {
  ChartPage page;
  page.run(1100);
  page.silence("g6", 1);
  page.later(950, [&] {
    EXPECT_TRUE(page.main.recording.ticking);
    page.dialogs.meanwhile = [&] { wait(page.main, 10'000); };
    const std::size_t before = page.rows();
    askText(page.main, "Voltage", "Which?", "120");
    EXPECT_GE(page.rows(), before + 8);
  });
  page.run(20'000);
  EXPECT_GE(page.rows(), 16u);
  EXPECT_EQ(page.lost, 0);
  for (std::size_t i = 1; i < page.rows(); ++i) EXPECT_GT(page.row(i)[0], page.row(i - 1)[0]);
}

TEST(ChartPage, AJournalThatCanNotBeWrittenIsToldOnce) {
  TempFolder folder;
  ChartPage page;
  page.main.around.folders.state = folder.put("file", "") + "/state";
  page.run(2200);
  const Label& notice = page.main.frame.noticeLbl;
  EXPECT_NE(notice.caption().find("Not a directory"), std::string::npos) << notice.caption();
  page.main.frame.noticeLbl.setCaption("");
  page.run(5000);
  EXPECT_EQ(notice.caption(), "");
  EXPECT_GE(page.rows(), 6u);
  page.main.around.folders.state = folder / "state";
  page.run(1100);
  EXPECT_EQ(page.main.recording.journal.rows, page.rows());
}

}  // namespace
}  // namespace zephon
