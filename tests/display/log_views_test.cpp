#include "display/log_views.h"

#include <gtest/gtest.h>

#include "display/data_world.h"
#include "logs/shown_log.h"
#include "protocol/day_serial.h"

namespace zephon {
namespace {

// Three half hours and the row that closes them, the newest first as after a wrap.
class LogViews : public ::testing::Test {
 protected:
  LogViews() {
    wireLogViews(bench.main);
    bench.stay(Page::Data);
    for (const double hour : {12.0, 10.0, 11.0})
      table.push_back({13, 1, 5, hour, 30, 0, 0, hour * 40, 110 + hour, 125, 112, hour / 10});
    table.push_back({13, 1, 5, 13, 0, 0});
    showHistory(bench.main);
  }
  std::string plotsVisible() const {
    std::string names;
    for (const Graph::Plot& plot : graph.plots()) names += plot.visible ? plot.name + ";" : "";
    return names;
  }

  testing_support::Bench bench;
  LogTable<12>& table = bench.main.logs.histData;
  DataElements& d = bench.main.data;
  Graph& graph = bench.main.frame.CWGraph2;
  const double first = dateSerial({2013, 5, 0, 1, 10, 30, 0, 0});
};

TEST_F(LogViews, ExcludeEachOtherAndTheTree) {
  d.PavgHistBtn.click();
  EXPECT_TRUE(graph.visible() && !d.TreeView1.visible());
  EXPECT_EQ(plotsVisible(), "average power;");
  d.VavgHistBtn.click();
  EXPECT_FALSE(d.PavgHistBtn.value());
  EXPECT_EQ(graph.axes()[0].maximum, 244);
  d.maxMinHistBtn.click();
  EXPECT_FALSE(d.VavgHistBtn.value() || d.TreeView1.visible());
  EXPECT_EQ(plotsVisible(), "largest voltage;smallest voltage;peak current;peak power;");
  d.iMaxBtn.click();
  d.vMaxBtn.click();
  EXPECT_EQ(plotsVisible(), "smallest voltage;peak power;");
  EXPECT_TRUE(graph.axes()[0].visible && !graph.axes()[1].visible);
  d.maxMinHistBtn.click();
  EXPECT_TRUE(d.TreeView1.visible() && graph.plots().empty());
  EXPECT_FALSE(graph.visible() || d.vMaxBtn.visible() || d.vMinBtn.value());
}

TEST_F(LogViews, PlotTheRecordsInTheOrderOfTimeAndReadThemOff) {
  d.maxMinHistBtn.click();
  ASSERT_EQ(graph.plots().size(), 4U);
  const PlotData& watts = *graph.plots()[3].data;
  ASSERT_EQ(watts.size(), 3U) << "the closing row is no record";
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_DOUBLE_EQ(watts.x(i), first + static_cast<double>(i) / 24);
    EXPECT_EQ(watts.y(i), 400 + 40.0 * static_cast<double>(i));
  }
  EXPECT_EQ(graph.axes()[1].maximum, 2.4);
  const char* const units[] = {"V Max", "V Min", "A Max", "W Max"};
  for (std::size_t plot = 0; plot < 4; ++plot) {
    graph.dropCursor(1, first, 1.5, plot, 0);
    EXPECT_EQ(graph.plots()[plot].annotation, std::string("05/01/13 10:30:00  1.500 ") + units[plot]);
  }
}

}  // namespace
}  // namespace zephon
