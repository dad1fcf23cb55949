#include "display/log_views.h"

#include <gtest/gtest.h>

#include "display/data_world.h"
#include "logs/history_log.h"
#include "logs/shown_log.h"
#include "protocol/day_serial.h"

namespace zephon {
namespace {

using testing_support::Bench;

// Three half hours and the row that closes them, the newest first as after a wrap.
LogTable<12> threeRows() {
  LogTable<12> table;
  for (const double hour : {12.0, 10.0, 11.0})
    table.push_back({13, 1, 5, hour, 30, 0, hour * 10, hour * 40, 110 + hour, 125, 112, hour / 10});
  table.push_back({13, 1, 5, 13, 0, 0, 0, 0, 0, 0, 0, 0});
  return table;
}

class LogViews : public ::testing::Test {
 protected:
  LogViews() {
    wireLogViews(bench.main);
    bench.stay(Page::Data);
    show(threeRows());
  }
  void show(LogTable<12> table) {
    hideShownLog(bench.main);
    bench.main.logs.histData = std::move(table);
    showHistory(bench.main);
  }
  std::string plotsVisible() const {
    std::string names;
    for (const Graph::Plot& plot : graph.plots()) names += plot.visible ? plot.name + ";" : "";
    return names;
  }

  Bench bench;
  DataElements& d = bench.main.data;
  Graph& graph = bench.main.frame.CWGraph2;
};

TEST_F(LogViews, ExcludeEachOtherAndTheTree) {
  d.PavgHistBtn.click();
  EXPECT_FALSE(d.TreeView1.visible());
  EXPECT_TRUE(graph.visible());
  EXPECT_EQ(plotsVisible(), "average power;");
  d.VavgHistBtn.click();
  EXPECT_FALSE(d.PavgHistBtn.value());
  EXPECT_EQ(plotsVisible(), "average voltage;");
  d.maxMinHistBtn.click();
  EXPECT_FALSE(d.VavgHistBtn.value() || d.TreeView1.visible());
  EXPECT_TRUE(d.vMaxBtn.visible() && d.pMaxBtn.visible());
  EXPECT_EQ(plotsVisible(), "largest voltage;smallest voltage;peak current;peak power;");
  d.iMaxBtn.click();
  d.vMaxBtn.click();
  EXPECT_EQ(plotsVisible(), "smallest voltage;peak power;");
  EXPECT_TRUE(graph.axes()[0].visible);
  EXPECT_FALSE(graph.axes()[1].visible);
  d.iMaxBtn.click();
  EXPECT_EQ(plotsVisible(), "smallest voltage;peak current;peak power;");
  d.maxMinHistBtn.click();
  EXPECT_TRUE(d.TreeView1.visible());
  EXPECT_FALSE(graph.visible() || d.vMaxBtn.visible() || d.vMinBtn.value());
  EXPECT_TRUE(graph.plots().empty());
}

TEST_F(LogViews, PlotTheRecordsInTheOrderOfTime) {
  d.maxMinHistBtn.click();
  ASSERT_EQ(graph.plots().size(), 4U);
  const PlotData& watts = *graph.plots()[3].data;
  ASSERT_EQ(watts.size(), 3U) << "the closing row is no record";
  const double first = dateSerial({2013, 5, 0, 1, 10, 30, 0, 0});
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_DOUBLE_EQ(watts.x(i), first + static_cast<double>(i) / 24);
    EXPECT_EQ(watts.y(i), 400 + 40.0 * static_cast<double>(i));
  }
  EXPECT_EQ(graph.axes()[0].maximum, 250);
  EXPECT_EQ(graph.axes()[1].maximum, 2.4);
  EXPECT_EQ(graph.axes()[2].minimum, 0);
  EXPECT_EQ(graph.axes()[2].maximum, 960);
}

TEST_F(LogViews, NothingAboveZeroKeepsTheDefaultRange) {
  LogTable<12> one = threeRows();
  one.erase(one.begin(), one.begin() + 2);
  one[0][6] = 0;
  show(one);
  d.PavgHistBtn.click();
  EXPECT_FALSE(graph.axes()[0].maximum.has_value());
  d.VavgHistBtn.click();
  EXPECT_EQ(graph.plots()[0].data->size(), 1U);
  EXPECT_EQ(graph.axes()[0].maximum, 242);
}

TEST_F(LogViews, DoNothingWithoutAHistory) {
  d.PavgHistBtn.click();
  hideShownLog(bench.main);
  EXPECT_FALSE(d.PavgHistBtn.value());
  for (Button* view : {&d.PavgHistBtn, &d.VavgHistBtn, &d.maxMinHistBtn}) {
    view->setValue(true);
    view->setValue(false);
  }
  EXPECT_FALSE(graph.visible() || d.TreeView1.visible() || d.vMaxBtn.visible());
}

TEST_F(LogViews, CursorsReadOffDateValueAndUnit) {
  const double at = dateSerial({2013, 5, 0, 1, 10, 30, 0, 0});
  const struct {
    Button& view;
    std::size_t plot;
    const char* text;
  } rows[] = {{d.PavgHistBtn, 0, "05/01/13 10:30:00  1.500 W"},
              {d.VavgHistBtn, 0, "05/01/13 10:30:00  1.500 V"},
              {d.maxMinHistBtn, 0, "05/01/13 10:30:00  1.500 V Max"},
              {d.maxMinHistBtn, 1, "05/01/13 10:30:00  1.500 V Min"},
              {d.maxMinHistBtn, 2, "05/01/13 10:30:00  1.500 A Max"},
              {d.maxMinHistBtn, 3, "05/01/13 10:30:00  1.500 W Max"}};
  for (const auto& row : rows) {
    row.view.setValue(true);
    ASSERT_EQ(graph.cursors().size(), 2U);
    graph.dropCursor(1, at, 1.5, row.plot, 0);
    EXPECT_EQ(graph.plots()[row.plot].annotation, row.text);
  }
  graph.setCursor(0, {"level", true, 0, 1, true, {}});
  graph.dropCursor(0, 0, 2, {}, {});  // a level reads nothing off
}

}  // namespace
}  // namespace zephon
