#include <gtest/gtest.h>

#include "window/tool_window.h"

// The scope's page as a user works it.
namespace zephon {
namespace {

using testing_support::ToolWindow;

struct ScopeWindow : ToolWindow {
  ScopeWindow() : ToolWindow(&FrameElements::ScopeBtn) {}
  const Graph::Cursor& cursor(std::size_t number) { return main.frame.CWGraph2.cursors()[number]; }
  ScopeElements& s = main.scope;
};

TEST(ScopePageWindow, ItsGridIsTheDivisionsAndAScaleButtonEndsAZoom) {
  ScopeWindow page;
  const GraphCanvas& canvas = page.canvas();
  EXPECT_EQ(canvas.line(0).size(), 256U);
  EXPECT_FALSE(canvas.line(0).pieces().at(0).isEmpty());
  const QVector<double> volts{-400, -300, -200, -100, 0, 100, 200, 300, 400};
  EXPECT_EQ(canvas.axis(0).tickVector(), volts);
  EXPECT_EQ(canvas.xAxis->tickVector(), (QVector<double>{0, 6, 12, 18, 24, 30, 36, 42, 48, 54, 60}));

  page.click(page.s.CH2togBtn);
  page.key(Qt::Key_Plus);
  page.key(Qt::Key_Plus, Qt::ControlModifier);
  page.pass(1000);
  const QCPRange zoomed[] = {canvas.xAxis->range(), canvas.axis(1).range()};
  EXPECT_LT(canvas.axis(0).range().size(), 800) << "captures leave the user's view alone";
  page.click(page.s.p1downBtn);
  EXPECT_EQ(canvas.axis(0).range(), QCPRange(-200, 200));
  EXPECT_EQ(canvas.axis(0).tickVector().at(1), -150);
  EXPECT_EQ(canvas.axis(1).range(), zoomed[1]);
  EXPECT_EQ(canvas.xAxis->range(), zoomed[0]);
  page.click(page.s.XoutBtn);
  page.pass(1000);
  EXPECT_EQ(canvas.xAxis->range(), QCPRange(0, 120));
  EXPECT_EQ(canvas.axis(1).range(), zoomed[1]);
}

TEST(ScopePageWindow, TheLevelAndThePointAreMovedAndReadOffAtOnce) {
  ScopeWindow page;
  page.click(page.s.oneShotVbtn);
  page.drag(page.at(30, 0, 300), page.at(30, 0, 150));
  EXPECT_NEAR(page.main.capture.oneShotLevel, 150, 2);
  page.key(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_NEAR(page.main.capture.oneShotLevel, 158, 2);
  EXPECT_TRUE(page.cursor(0).reading.starts_with("One Shot 15")) << page.cursor(0).reading;
  EXPECT_NE(page.readings().find(page.cursor(0).reading), std::string::npos) << page.readings();

  page.drag(page.at(0, 0, -300), page.at(15, 0, -300));
  EXPECT_NEAR(page.main.capture.oneShotLevel, 158, 2);
  EXPECT_TRUE(page.cursor(1).reading.starts_with("15.000 ms  ")) << page.cursor(1).reading;
  page.key(Qt::Key_Right, Qt::ControlModifier);
  EXPECT_TRUE(page.cursor(1).reading.starts_with("15.234 ms  ")) << page.cursor(1).reading;
  page.pass(200);
  EXPECT_EQ(page.cursor(1).y, page.main.capture.scopeV[65]) << "it follows the captures";
  EXPECT_NE(page.readings().find(page.cursor(1).reading), std::string::npos) << page.readings();

  page.click(page.s.holdBtn);
  page.pass(200);
  EXPECT_TRUE(page.main.capture.scopeHeld);
  page.drag(page.at(30, 0, page.cursor(0).y), page.at(30, 0, -100));
  EXPECT_NEAR(page.main.capture.oneShotLevel, -100, 2);
  EXPECT_TRUE(page.cursor(0).reading.starts_with("One Shot -")) << page.cursor(0).reading;
}

}  // namespace
}  // namespace zephon
