#include "display/chart_page.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "display/log_views.h"
#include "protocol/day_serial.h"
#include "support/bench.h"
#include "support/temp_folder.h"

namespace zephon {
namespace {

using simulator::Fault;
using simulator::FaultKind;
using testing_support::World;

// The page as it is once its button has opened it.
struct ChartWorld : World {
  explicit ChartWorld(const simulator::Profile& profile = {}) : World(profile) {
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
  void silence(const std::string& command, int commands = Fault::kEvery) {
    device.addFault({.kind = FaultKind::Silent, .only = command, .commands = commands});
  }
  std::size_t rows() const { return main.logs.chartData.size() - 1; }
  const std::array<double, 9>& row(std::size_t i) const { return main.logs.chartData[i]; }

  ChartElements& c = main.chart;
  Graph& graph = main.frame.CWGraph2;
  int lost = 0;
};
class ChartPage : public ChartWorld, public testing::Test {};

TEST_F(ChartPage, FillsARowATickInTheOrderOfTheQuantities) {
  device.hold({.volts = 118.5,
               .amps = 3.25,
               .watts = 320,
               .neutralGroundVolts = 0.5,
               .hertz = 60,
               .powerFactor = 0.75,
               .crestFactor = 1.414});
  const double begun = dateSerial(clock.now().local);
  run(1100);
  ASSERT_EQ(rows(), 1u);
  EXPECT_EQ(commands(), (std::vector<std::string>{"g4", "g6", "g8", "g5", "g;", "g:", "g7", "g9"}));
  const double expected[] = {
      begun + 1 / 86400.0, 118.5, 3.25, 320, 0.5, 60, 0.75, 1.414, device.device().kilowattHours()};
  const double off[] = {1e-7, 0.01, 0.005, 4, 0.005, 0.13, 0.02, 0.01, 0.001};
  for (std::size_t i = 0; i < 9; ++i) EXPECT_NEAR(row(0)[i], expected[i], off[i]) << i;
  EXPECT_EQ(graph.plots()[0].annotation, "118.5 V");
  EXPECT_TRUE(graph.plots()[7].annotation.ends_with(" kWh"));
  EXPECT_EQ(graph.plots()[0].data->y(0), row(0)[1]);
}

TEST_F(ChartPage, TheSlidersSecondsAreAtLeastOne) {
  for (const auto& [seconds, interval] : {std::pair{60.0, 60'000.0}, {0.0, 1000.0}, {1.5, 1500.0}}) {
    c.chartIntervalSlide.setValue(seconds);
    EXPECT_EQ(main.timers.chartTimer.interval(), interval);
  }
  EXPECT_EQ(c.chartIntervalSlide.tooltip(), main.dict[45] + " (1.5 x sec)");
  run(1499);
  later(5, [&] {  // in the middle of the tick
    c.chartIntervalSlide.setValue(2);
    EXPECT_FALSE(main.timers.chartTimer.enabled());
  });
  run(1900);
  EXPECT_EQ(rows(), 1u);
  run(200);
  EXPECT_EQ(rows(), 2u);
}

TEST_F(ChartPage, AnswersInPartAreAskedForAgainAndNoneAreAGap) {
  const std::vector<std::string> allButVolts = {"g6", "g8", "g5", "g;", "g:", "g7", "g9"};
  const struct {
    const char* what;
    std::vector<std::string> silent;
    int times;
    bool thenVoltsToo;
    std::ptrdiff_t tries;
    int lost;
  } cases[] = {{"seven fail in all four tries", allButVolts, Fault::kEvery, false, 4, 1},
               {"one answers in the fourth", {"g5"}, 3, false, 4, 0},
               {"all fail in the second", allButVolts, 2, true, 2, 0}};
  for (const auto& one : cases) {
    SCOPED_TRACE(one.what);
    ChartWorld page;
    for (const std::string& command : one.silent) page.silence(command, one.times);
    if (one.thenVoltsToo)
      page.device.addFault({.kind = FaultKind::Silent, .only = "g4", .commands = 1, .afterSeconds = 1.1});
    while (page.rows() == 0 && page.lost == 0) page.run(10);
    EXPECT_EQ(page.asked("g4"), one.tries);
    EXPECT_EQ(page.lost, one.lost);
    EXPECT_EQ(page.main.timers.chartTimer.enabled(), one.lost == 0);
    EXPECT_EQ(page.row(0)[1] > 0, !one.thenVoltsToo && one.lost == 0);
    EXPECT_EQ(page.main.frame.adviceLbl.caption() != "", one.thenVoltsToo);
  }
}

TEST_F(ChartPage, TheSecondLineIsAskedForWhatItHas) {
  const struct {
    const char* firmware;
    int rating;
    bool neutral;
  } rows[] = {{"2.00", 120, true}, {"1.67", 120, false}, {"2*14", 240, false}};
  for (const auto& one : rows) {
    SCOPED_TRACE(one.firmware);
    simulator::Profile profile = simulator::makeProfile(simulator::Line::Tessara, one.rating);
    profile.firmware = one.firmware;
    ChartWorld page(profile);
    page.device.hold({.volts = one.rating * 0.95, .neutralGroundVolts = 12});
    page.run(14'000);
    ASSERT_GE(page.rows(), 1u);
    EXPECT_EQ(page.commands().front(), "s") << "the load comes first";
    EXPECT_EQ(page.asked("p") > 0, one.neutral);
    EXPECT_NEAR(page.row(0)[1], one.rating * 0.95, 1.5);
    EXPECT_NEAR(page.row(0)[4], one.neutral ? 12 : 0, 1.5);
    EXPECT_EQ(page.graph.plots()[3].visible, one.neutral);
    EXPECT_EQ(page.c.vngChartBtn.value(), one.neutral);
    EXPECT_TRUE(page.graph.plots()[0].visible && page.c.vlnChartBtn.value());
    for (const std::size_t i : {1, 2, 4, 5, 6, 7}) EXPECT_FALSE(page.graph.plots()[i].visible) << i;
    page.c.euChartBtn.setValue(true);
    page.c.vngChartBtn.setValue(true);
    EXPECT_TRUE(page.graph.plots()[7].visible) << "the value that stands is drawn on demand";
    EXPECT_EQ(page.graph.plots()[3].visible, one.neutral);
    EXPECT_EQ(page.graph.plots()[0].annotation.find('.'), std::string::npos);
    page.device.cutLine();  // all that this device is asked have failed then
    const std::size_t before = page.rows();
    page.run(30'000);
    EXPECT_EQ(page.row(before + 1)[1], 0);
    EXPECT_EQ(page.lost, 0);
  }
}

TEST_F(ChartPage, AButtonShowsItsPlotAndAxisWhileThePageIsOn) {
  const auto shown = [&] {
    std::string text;
    for (const auto& plot : graph.plots()) text += plot.visible ? '1' : '0';
    text += ' ';
    for (const auto& axis : graph.axes()) text += axis.visible ? '1' : '0';
    return text;
  };
  EXPECT_EQ(shown(), "11111111 1111111");
  c.vlnChartBtn.click();
  c.cfChartBtn.click();
  EXPECT_EQ(shown(), "01111101 0111111") << "the power factor shares its axis";
  c.pfChartBtn.click();
  open();
  EXPECT_EQ(shown(), "01111001 0111101") << "opened again";
}

TEST_F(ChartPage, TheRecordingOutlivesThePageAndTheClock) {
  run(5400);
  const std::size_t before = rows();
  silence("g6", 1);
  later(700, [&] {
    EXPECT_TRUE(main.recording.ticking);
    stay(Page::None);
    main.timers.chartTimer.setEnabled(false);
    clearChartPage(main);
  });
  run(60'000);
  EXPECT_EQ(lost, 0);
  open();
  EXPECT_EQ(graph.plots()[0].data->size(), before);
  clock.setMinutesEast(testing_support::Bench::kMinutesEast - 60);
  run(3200);
  ASSERT_EQ(rows(), before + 3);
  const PlotData& volts = *graph.plots()[0].data;
  EXPECT_LT(row(before)[0], row(before - 1)[0]);
  for (std::size_t i = 1; i < volts.size(); ++i) EXPECT_GE(volts.x(i), volts.x(i - 1)) << i;
}

TEST_F(ChartPage, AJournalThatCanNotBeWrittenIsToldOnce) {
  const TempFolder folder;
  main.around.folders.state = folder.put("file", "") + "/state";
  Label& notice = main.frame.noticeLbl;
  run(2200);
  EXPECT_NE(notice.caption().find("Not a directory"), std::string::npos) << notice.caption();
  notice.setCaption("");
  run(5000);
  EXPECT_EQ(notice.caption(), "");
}

}  // namespace
}  // namespace zephon
