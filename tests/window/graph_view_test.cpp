#include "window/graph_view.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <cmath>
#include <memory>
#include <vector>

#include "window/graph_picture.h"
#include "window/hands.h"

namespace zephon {
namespace {

using testing_support::drag;
using testing_support::settle;

constexpr double kHour = 1.0 / 24;

// A point each `apart` days.
struct Points : PlotData {
  explicit Points(std::vector<double> values, double days = 1) : ys(std::move(values)), apart(days) {}
  std::size_t size() const override { return ys.size(); }
  double x(std::size_t index) const override { return 45000 + apart * static_cast<double>(index); }
  double y(std::size_t index) const override {
    reads += 1;
    return ys.at(index);
  }
  std::vector<double> ys;
  double apart;
  mutable int reads = 0;
};

class GraphViewTest : public testing::Test {
 protected:
  GraphViewTest() {
    view->resize(800, 400);
    view->show();
    graph.setUp({{"vaxis", "Voltage (V)", 0, 200, true}, {"paxis", "Power (W)", {}, {}, true}},
                {{"voltage", "Line Voltage", "V", 0, true, "120.4 V", volts},
                 {"power", "Power <P>", "W", 1, true, "", watts}},
                {{"Cursor-1", true, 45001, 110, false, 0}, {"Level", true, 45000, 150, true, 0}});
    settle();
  }
  void showOne(std::shared_ptr<const PlotData> points) {
    graph.setUp({{"vaxis", "Voltage (V)", {}, {}, true}}, {{"voltage", "V", "V", 0, true, "", points}}, {});
    settle();
  }
  GraphCanvas& canvas() { return *dynamic_cast<GraphCanvas*>(view->findChild<QWidget*>("canvas")); }
  QCPRange x() { return canvas().xAxis->range(); }
  QCPRange y(std::size_t axis) { return canvas().axis(axis).range(); }
  QString readings() { return view->findChild<QLabel*>("readings")->text(); }
  QPoint at(double moment, double value) { return testing_support::pixelOf(canvas(), moment, value); }
  void key(Qt::Key key, Qt::KeyboardModifiers held = {}) {
    QTest::keyClick(view.get(), key, held);
    settle();
  }
  void wheel(QPoint at, int notches, Qt::KeyboardModifiers held = {}) {
    QWheelEvent turn(at, canvas().mapToGlobal(at), {}, {0, 120 * notches}, Qt::NoButton, held,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(&canvas(), &turn);
    settle();
  }

  std::shared_ptr<Points> volts = std::make_shared<Points>(std::vector<double>{100, 110, 120, 130, 140});
  std::shared_ptr<Points> watts = std::make_shared<Points>(std::vector<double>{50, 60, 70});
  ElementList list;
  Graph graph{list, "CWGraph2"};
  std::unique_ptr<QWidget> view{drawGraph(graph, nullptr)};
};

TEST_F(GraphViewTest, GivesTheRoomOfItsReadingsBackToTheNextPicture) {
  const auto room = [&] { return view->findChild<QLabel*>("readings")->height(); };
  view->resize(170, 400);
  settle();
  const int twoLines = room();
  showOne(volts);
  EXPECT_LT(room(), twoLines);
}

TEST_F(GraphViewTest, DrawsThePlotsOnTheirAxes) {
  ASSERT_EQ(canvas().lines(), 2U);
  EXPECT_EQ(y(0), QCPRange(0, 200));
  EXPECT_GT(y(1).upper, 70);
  EXPECT_EQ(x(), QCPRange(45000, 45004));
  ASSERT_EQ(canvas().line(0).pieces().size(), 1U);
  EXPECT_EQ(canvas().line(0).pieces()[0].size(), 5);
  EXPECT_EQ(canvas().line(0).pieces()[0][2].toPoint(), at(45002, 120));
  EXPECT_TRUE(readings().contains("Line Voltage: <b>120.4 V"));
  EXPECT_TRUE(readings().contains("Power &lt;P&gt;"));
  graph.setPlotVisible(0, false);
  graph.setAxisVisible(0, false);
  settle();
  EXPECT_EQ(x(), QCPRange(45000, 45004)) << "the plot that stays is shorter";
  EXPECT_FALSE(canvas().axis(0).visible() || readings().contains("Line Voltage"));
}

TEST_F(GraphViewTest, TheViewFollowsUntilItIsMovedAndStandsFromThenOn) {
  volts->ys.push_back(150);
  watts->ys = {50, 60, 70, 300};
  graph.grown();
  settle();
  EXPECT_EQ(x().upper, 45005);
  key(Qt::Key_Plus);
  const QCPRange zoomed = x();
  EXPECT_NEAR(zoomed.size(), 4, 1e-6);
  volts->ys.push_back(160);
  watts->ys.push_back(900);
  graph.grown();
  graph.setXRange(std::pair(45000.0, 45006.0));
  graph.setData(0, std::make_shared<Points>(std::vector<double>(9, 170)));
  settle();
  EXPECT_EQ(x(), zoomed);
  EXPECT_GT(y(1).upper, 900) << "an axis that was not moved goes on following";
  key(Qt::Key_F);
  EXPECT_EQ(x(), QCPRange(45000, 45006));
  key(Qt::Key_P);
  graph.setXRange(std::pair(45000.0, 45009.0));
  settle();
  EXPECT_EQ(x(), QCPRange(45000, 45006)) << "paused";
}

TEST_F(GraphViewTest, TheWheelAndDragMoveWhatThePointerIsOn) {
  const QPoint middle = canvas().axisRect()->center() + QPoint(20, 0);
  const QPoint onVolts(canvas().axisRect()->left() - 4, middle.y());
  const QPoint down(0, 30);
  const struct {
    const char* what;
    std::function<void()> act;
    bool x, volts, watts;
  } cases[] = {
      {"wheel", [&] { wheel(middle, 1); }, true, false, false},
      {"wheel on an axis", [&] { wheel(onVolts, 1); }, false, true, false},
      {"wheel with Ctrl", [&] { wheel(middle, -1, Qt::ControlModifier); }, false, true, true},
      {"drag", [&] { drag(canvas(), middle, middle + QPoint(-40, 9)); }, true, false, false},
      {"drag of an axis", [&] { drag(canvas(), onVolts, onVolts + down); }, false, true, false},
  };
  for (const auto& one : cases) {
    key(Qt::Key_Home);
    const QCPRange before[] = {x(), y(0), y(1)};
    one.act();
    EXPECT_EQ(x() != before[0], one.x) << one.what;
    EXPECT_EQ(y(0) != before[1], one.volts) << one.what;
    EXPECT_EQ(y(1) != before[2], one.watts) << one.what;
  }
  wheel(middle, 2);
  QTest::mouseDClick(&canvas(), Qt::LeftButton, {}, middle);
  EXPECT_EQ(x(), QCPRange(45000, 45004));
  for (int i = 0; i < 300; ++i) canvas().zoomTime(0.8);
  EXPECT_GT(x().size(), 1e-6);
}

TEST_F(GraphViewTest, OneSampleIsNeverLostAndALongPlotCostsNoMoreThanItsPixels) {
  auto points = std::make_shared<Points>(std::vector<double>(100000, 120), 1.0 / 86400);
  points->ys[54321] = 500;
  points->ys[77777] = -500;
  showOne(points);
  QPolygonF line;
  const auto isDrawn = [&](std::size_t index) {
    line.clear();
    for (const QPolygonF& piece : canvas().line(0).pieces()) line += piece;
    const QPoint wanted = at(points->x(index), points->ys[index]);
    return std::any_of(line.begin(), line.end(), [&](QPointF point) { return point.toPoint() == wanted; });
  };
  EXPECT_TRUE(isDrawn(54321) && isDrawn(77777));
  EXPECT_LE(line.size(), 2 * canvas().width());
  points->reads = 0;
  points->ys.push_back(121);
  graph.grown();
  settle();
  EXPECT_LT(points->reads, 20 * canvas().width()) << "a tick does not look at every point";
  key(Qt::Key_L);
  EXPECT_NEAR(x().size(), kHour, 1e-9);
  EXPECT_TRUE(isDrawn(100000));
}

TEST_F(GraphViewTest, GapsBreakTheLine) {
  showOne(std::make_shared<Points>(std::vector<double>{NAN, 1, 2, NAN, NAN, 3, NAN, 4, 5, NAN}));
  std::vector<qsizetype> sizes;
  for (const QPolygonF& piece : canvas().line(0).pieces()) {
    if (!piece.isEmpty()) sizes.push_back(piece.size());
  }
  EXPECT_EQ(sizes, (std::vector<qsizetype>{2, 1, 2}));
  std::vector<double> blink(50000, 7);
  std::fill(blink.begin() + 20000, blink.begin() + 21000, NAN);
  showOne(std::make_shared<Points>(blink));
  EXPECT_EQ(canvas().line(0).pieces().size(), 2U);
}

TEST_F(GraphViewTest, CursorsSnapAndReadOffByMouseAndKeys) {
  std::vector<std::pair<std::size_t, std::optional<std::size_t>>> let;
  graph.onCursor = [&](std::size_t cursor, std::optional<std::size_t> index) {
    let.push_back({cursor, index});
  };
  const Graph::Cursor& point = graph.cursors()[0];
  const Graph::Cursor& level = graph.cursors()[1];
  drag(canvas(), at(45001, 20) + QPoint(4, 0), at(45003.2, 20));
  EXPECT_TRUE(point.x == 45003 && point.y == 130);
  EXPECT_EQ(x(), QCPRange(45000, 45004));
  for (int i = 0; i < 2; ++i) key(Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(point.x, 45004) << "the last one";
  key(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(point.plot, 1U);
  EXPECT_EQ(point.y, 70) << "the nearest of the shorter plot";
  key(Qt::Key_C);
  key(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_NEAR(level.y, 152, 1e-9) << "a level goes by a hundredth of its axis";
  drag(canvas(), at(45002.5, 152), at(45002.5, 60));
  EXPECT_NEAR(level.y, 60, 1);
  using Let = decltype(let);
  EXPECT_EQ(let, (Let{{0, 3}, {0, 4}, {0, 2}, {1, std::nullopt}, {1, std::nullopt}}));
}

TEST_F(GraphViewTest, PointsThatWereGivenUpAreNotLookedAtAgain) {
  graph.setUp({}, {}, {});
  volts->reads = 0;
  watts->reads = 0;
  view->resize(640, 300);
  view->repaint();
  settle();
  EXPECT_EQ(volts->reads + watts->reads, 0);
}

TEST_F(GraphViewTest, PicturesHoldTheLegend) {
  const QByteArray svg = svgOf(canvas(), readings());
  for (const char* part : {"<svg", "Line", "polyline"}) EXPECT_TRUE(svg.contains(part)) << part;
  const QImage png = QImage::fromData(pngOf(canvas(), readings()), "PNG");
  EXPECT_GT(png.height(), canvas().height() * 2);
}

}  // namespace
}  // namespace zephon
