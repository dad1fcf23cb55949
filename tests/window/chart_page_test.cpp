#include <gtest/gtest.h>

#include "window/tool_window.h"

// The chart's page as a user works it.
namespace zephon {
namespace {

using testing_support::ToolWindow;

TEST(ChartPageWindow, DrawsEachRowWithItsGapsAndThePlotsThatAreOn) {
  ToolWindow page(&FrameElements::ChartBtn);
  page.pass(5000);
  page.device.cutLine();
  page.pass(3000);
  page.device.restoreLine();
  page.pass(4000);
  const auto& canvas = page.canvas();
  const std::size_t rows = page.main.logs.chartData.size() - 1;
  ASSERT_GE(rows, 10U);
  ASSERT_EQ(canvas.lines(), 8U);
  for (std::size_t i = 0; i < 8; ++i) {
    const PlotLine& line = canvas.line(i);
    EXPECT_EQ(line.size(), rows) << i;
    EXPECT_EQ(line.pieces().size(), 2U) << "the outage breaks line " << i;
    EXPECT_TRUE(line.visible());
  }
  const std::string latest = page.main.frame.CWGraph2.plots()[0].annotation;
  EXPECT_TRUE(latest.ends_with(" V")) << latest;
  EXPECT_NE(page.readings().find(latest), std::string::npos) << page.readings();

  page.click(page.main.chart.vlnChartBtn);
  EXPECT_FALSE(canvas.line(0).visible() || canvas.axis(0).visible());
  EXPECT_TRUE(canvas.line(1).visible() && canvas.axis(1).visible());
  page.key(Qt::Key_P);
  page.pass(3000);
  EXPECT_EQ(canvas.line(1).size(), rows);
  page.key(Qt::Key_P);
  EXPECT_EQ(canvas.line(1).size(), page.main.logs.chartData.size() - 1);

  // A small window, or one at 200 %, keeps its room for the plots and not for their axes.
  page.window.resize(683, 384);
  page.pass(2000);
  EXPECT_GE(canvas.axisRect()->width(), 120);
  EXPECT_TRUE(canvas.axis(1).visible() && !canvas.axis(6).visible());
}

}  // namespace
}  // namespace zephon
