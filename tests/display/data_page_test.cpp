#include "display/data_page.h"

#include <gtest/gtest.h>

#include "display/data_world.h"

namespace zephon {
namespace {

using simulator::FaultKind;
using testing_support::DataWorld;

using D = DataElements;
class DataPage : public DataWorld, public testing::Test {};

TEST_F(DataPage, ALogButtonDownloadsWhenItIsPressedAndCanBePressedAgain) {
  for (Button* button : {&d.histDataBtn, &d.histDataBtn, &d.tsDataBtn}) {
    later(700, [&] {
      EXPECT_TRUE(logButtonsEnabled(false));
      EXPECT_FALSE(d.TreeView1.visible() || f.saveBtn.visible() || f.expertBtn.visible());
    });
    button->click();
    EXPECT_TRUE(logButtonsEnabled(true) && !button->value());
    EXPECT_TRUE(d.TreeView1.visible() && f.saveBtn.visible() && f.expertBtn.visible());
  }
  for (const char* chip : {"4C.5A.17", "01.02.03"}) {  // left, and opened again on this device and on another
    clearDataPage(main);
    EXPECT_TRUE(d.TreeView1.empty() && !f.saveBtn.visible());
    main.link.chipID = chip;
    layDataPage(main, true);
    EXPECT_EQ(d.TreeView1.visible() && f.saveBtn.visible(), *chip == '4');
  }
}

TEST_F(DataPage, TheChartMemoryIsPlottedWithAQuarterOfTheWidthFree) {
  d.cmDataBtn.click();
  EXPECT_TRUE(graph.visible() && f.saveBtn.visible() && !d.TreeView1.visible());
  const LogTable<9>& rows = main.logs.chartData;
  ASSERT_EQ(graph.plots().size(), 8U);
  for (std::size_t i = 0; i < 8; ++i) {
    const Graph::Plot& plot = graph.plots()[i];
    EXPECT_TRUE(plot.visible && graph.axes()[plot.axis].visible) << plot.name;
    EXPECT_EQ(plot.data->x(100), rows[100][0]);
    EXPECT_EQ(plot.data->y(100), rows[100][i + 1]) << plot.name;
  }
  const double width = rows.back()[0] - rows.front()[0];
  EXPECT_EQ(graph.xRange(), std::pair(rows.front()[0], rows.front()[0] + width * 1.25));
}

TEST_F(DataPage, ClearingAsksWhichLogAndWaitsForWhatStillComes) {
  dialogs.yes = false;
  d.clrTsDataBtn.click();
  EXPECT_EQ(dialogs.shown().back().text + dialogs.shown().back().detail, "Clear?Time Stamped Log");
  EXPECT_TRUE(commands().empty());
  dialogs.yes = true;
  later(3000, [&] { d.cancelDataBtn.click(); });
  d.histDataBtn.click();
  EXPECT_LT(nowMs(), 3500);
  EXPECT_EQ(main.logs.shown, ShownLog::None);
  d.clrHistDataBtn.click();
  EXPECT_EQ(commands().back(), "s@Y");
  d.clrTsDataBtn.click();
  EXPECT_EQ(commands().back(), "s>Y");
  EXPECT_FALSE(f.saveBtn.visible() || f.expertBtn.visible());
  device.clearLog();
  dialogs.meanwhile = [&] { stay(Page::Setup); };
  d.clrTsDataBtn.click();
  EXPECT_TRUE(commands().empty()) << "the page was left before the answer";
}

TEST(DataPageExits, ALostLinkEndsThePage) {
  for (Button D::*button : {&D::cmDataBtn, &D::clrHistDataBtn}) {
    DataWorld world;
    world.device.addFault({.kind = FaultKind::Silent});
    (world.d.*button).click();
    EXPECT_EQ(world.lost, 1);
  }
}

TEST(DataPageLogs, AreThoseThatTheDeviceHas) {
  simulator::Profile none;
  none.chartMemory = simulator::ChartFitted::None;
  DataWorld world(none);
  EXPECT_TRUE(readDataPage(world.main));
  EXPECT_TRUE(world.d.histDataBtn.visible() && !world.d.cmDataBtn.visible());
}

}  // namespace
}  // namespace zephon
