#include "window/tool_window.h"

// The chart's page as a user works it.
namespace zephon {
namespace {

TEST(ChartPageWindow, DrawsEachRowWithItsGapsAndThePlotsThatAreOn) {
  testing_support::ToolWindow page({}, "EN", testing_support::World::quiet());
  page.device.hold({.volts = 120, .amps = 10, .hertz = 60, .powerFactor = 1});
  page.use(page.main.frame.ChartBtn, 5500);
  page.device.cutLine();
  page.pass(3000);
  page.device.restoreLine();
  page.pass(4000);
  const GraphCanvas& canvas = page.canvas();
  const auto& table = page.main.logs.chartData;
  const std::size_t rows = table.size() - 1;
  ASSERT_GE(rows, 10U);
  ASSERT_EQ(canvas.lines(), 8U);
  for (std::size_t i = 0; i < 8; ++i) {
    EXPECT_EQ(canvas.line(i).size(), rows) << i;
    EXPECT_EQ(canvas.line(i).pieces().size(), 2U) << "the outage breaks line " << i;
    EXPECT_TRUE(canvas.line(i).visible());
  }
  const std::string latest = page.main.frame.CWGraph2.plots()[0].annotation;
  EXPECT_NE(page.readings().find(latest), std::string::npos) << page.readings();

  page.use(page.main.chart.vlnChartBtn);
  EXPECT_FALSE(canvas.line(0).visible() || canvas.axis(0).visible());
  EXPECT_TRUE(canvas.line(1).visible() && canvas.axis(1).visible());
  page.key(Qt::Key_P);  // a paused view stands while the rows go on
  page.pass(3000);
  EXPECT_EQ(canvas.line(1).size(), rows);
  page.key(Qt::Key_P);
  EXPECT_EQ(canvas.line(1).size(), table.size() - 1);

  // A small window, or one at 200 %, keeps its room for the plots and not for their axes.
  page.window.resize(683, 384);
  page.pass(2000);
  EXPECT_GE(canvas.axisRect()->width(), 120);
  EXPECT_TRUE(canvas.axis(1).visible() && !canvas.axis(6).visible());
}

}  // namespace
}  // namespace zephon
