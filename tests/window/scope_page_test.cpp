#include "window/tool_window.h"

// The scope's page as a user works it.
namespace zephon {
namespace {

using testing_support::pixelOf;

struct ScopePageWindow : testing_support::ToolWindow, testing::Test {
  ScopePageWindow() : ToolWindow({}, "EN", testing_support::World::quiet()) {
    device.hold({.volts = 120, .amps = 10, .hertz = 60, .powerFactor = 1});
    use(main.frame.ScopeBtn, 500);
  }
  const std::string& reading(std::size_t cursor) { return main.frame.CWGraph2.cursors()[cursor].reading; }
  void drag(double fromX, double fromY, double toX, double toY) {
    testing_support::drag(canvas(), pixelOf(canvas(), fromX, fromY), pixelOf(canvas(), toX, toY));
  }
  ScopeElements& s = main.scope;
  Capture& capture = main.capture;
};

TEST_F(ScopePageWindow, ItsGridIsTheDivisionsAndAScaleButtonEndsAZoom) {
  const GraphCanvas& graph = canvas();
  EXPECT_EQ(graph.line(0).size(), 256U);
  EXPECT_EQ(graph.axis(0).tickVector(), (QVector<double>{-400, -300, -200, -100, 0, 100, 200, 300, 400}));
  EXPECT_EQ(graph.xAxis->tickVector(), (QVector<double>{0, 6, 12, 18, 24, 30, 36, 42, 48, 54, 60}));
  use(s.CH2togBtn);
  key(Qt::Key_Plus);
  key(Qt::Key_Plus, Qt::ControlModifier);
  pass(1000);
  const QCPRange zoomed[] = {graph.xAxis->range(), graph.axis(1).range()};
  EXPECT_LT(graph.axis(0).range().size(), 800) << "captures leave the user's view alone";
  use(s.p1downBtn);
  EXPECT_EQ(graph.axis(0).range(), QCPRange(-200, 200));
  EXPECT_EQ(graph.axis(1).range(), zoomed[1]);
  EXPECT_EQ(graph.xAxis->range(), zoomed[0]);
  use(s.XoutBtn);
  pass(1000);
  EXPECT_EQ(graph.xAxis->range(), QCPRange(0, 120));
}

TEST_F(ScopePageWindow, TheLevelAndThePointAreMovedAndReadOffAtOnce) {
  use(s.oneShotVbtn);
  drag(30, 300, 30, 150);
  EXPECT_NEAR(capture.oneShotLevel, 150, 2);
  key(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_NEAR(capture.oneShotLevel, 158, 2);
  EXPECT_TRUE(reading(0).starts_with("One Shot 15")) << reading(0);
  EXPECT_NE(readings().find(reading(0)), std::string::npos) << readings();
  drag(0, -300, 15, -300);
  EXPECT_NEAR(capture.oneShotLevel, 158, 2);
  EXPECT_TRUE(reading(1).starts_with("15.000 ms  ")) << reading(1);
  key(Qt::Key_Right, Qt::ControlModifier);
  EXPECT_TRUE(reading(1).starts_with("15.234 ms  ")) << reading(1);
  pass(200);
  EXPECT_EQ(main.frame.CWGraph2.cursors()[1].y, capture.scopeV[65]) << "it follows the captures";
  EXPECT_NE(readings().find(reading(1)), std::string::npos) << readings();
}

}  // namespace
}  // namespace zephon
