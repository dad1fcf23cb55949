#include "display/data_page.h"

#include <gtest/gtest.h>

#include "display/data_world.h"

namespace zephon {
namespace {

using simulator::FaultKind;
using simulator::Line;
using simulator::makeProfile;
using testing_support::DataWorld;

using D = DataElements;

TEST(DataPage, ALogButtonDownloadsWhenItIsPressedAndCanBePressedAgain) {
  DataWorld world;
  for (Button* button : {&world.d.histDataBtn, &world.d.tsDataBtn, &world.d.tsDataBtn}) {
    world.later(700, [&] {
      EXPECT_TRUE(world.logButtonsEnabled(false));
      EXPECT_FALSE(world.d.TreeView1.visible() || world.f.saveBtn.visible() || world.f.expertBtn.visible());
    });
    button->click();
    EXPECT_TRUE(world.logButtonsEnabled(true) && !button->value());
    EXPECT_TRUE(world.d.TreeView1.visible() && !world.d.TreeView1.empty());
    EXPECT_TRUE(world.f.saveBtn.visible() && world.f.expertBtn.visible());
  }
  for (const char* chip : {"4C.5A.17", "01.02.03"}) {  // left, and opened again on this device and on another
    clearDataPage(world.main);
    EXPECT_TRUE(world.d.TreeView1.empty() && !world.f.saveBtn.visible());
    world.main.link.chipID = chip;
    layDataPage(world.main, true);
    EXPECT_EQ(world.d.TreeView1.visible() && world.f.saveBtn.visible(), *chip == '4');
  }
}

TEST(DataPage, TheChartMemoryIsPlottedWithAQuarterOfTheWidthFree) {
  DataWorld world;
  world.d.cmDataBtn.click();
  EXPECT_TRUE(world.graph.visible() && world.f.saveBtn.visible() && !world.d.TreeView1.visible());
  const LogTable<9>& rows = world.main.logs.chartData;
  ASSERT_EQ(world.graph.plots().size(), 8U);
  for (std::size_t i = 0; i < 8; ++i) {
    const Graph::Plot& plot = world.graph.plots()[i];
    EXPECT_TRUE(plot.visible && world.graph.axes()[plot.axis].visible) << plot.name;
    ASSERT_EQ(plot.data->size(), rows.size());
    EXPECT_EQ(plot.data->x(100), rows[100][0]);
    EXPECT_EQ(plot.data->y(100), rows[100][i + 1]) << plot.name;
  }
  const double width = rows.back()[0] - rows.front()[0];
  EXPECT_EQ(world.graph.xRange(), std::pair(rows.front()[0], rows.front()[0] + width * 1.25));
  EXPECT_TRUE(world.graph.plots()[0].annotation.ends_with(" V"));
  world.graph.dropCursor(0, rows[7][0], rows[7][5], 4, 7);
  EXPECT_TRUE(world.graph.plots()[4].annotation.ends_with("0 Hz")) << world.graph.plots()[4].annotation;
}

TEST(DataPage, ALostLinkEndsThePageAReleasedButtonDoesNot) {
  DataWorld world;
  world.device.addFault({.kind = FaultKind::Silent, .only = "g`"});
  world.d.cmDataBtn.click();
  EXPECT_EQ(world.lost--, 1);
  world.stay(Page::Data);
  layDataPage(world.main, true);
  world.device.addFault({.kind = FaultKind::Silent, .only = "gE"});
  world.later(2000, [&] { world.d.tsDataBtn.setValue(false); });
  world.d.tsDataBtn.click();
  EXPECT_TRUE(world.lost == 0 && world.logButtonsEnabled(true));
}

TEST(DataPage, ClearingAsksWhichLogAndWaitsForWhatStillComes) {
  DataWorld world;
  world.d.clrTsDataBtn.setTooltip("Clear Time Stamped Log");
  world.dialogs.yes = false;
  world.d.clrTsDataBtn.click();
  EXPECT_EQ(world.dialogs.texts().back(), "Clear Time Stamped Log?");
  EXPECT_TRUE(world.commands().empty());
  world.dialogs.yes = true;
  world.later(3000, [&] { world.d.cancelDataBtn.click(); });
  world.d.histDataBtn.click();
  EXPECT_LT(world.nowMs(), 3500);
  EXPECT_TRUE(world.main.logs.shown == ShownLog::None && world.logButtonsEnabled(true));
  world.d.clrHistDataBtn.click();
  EXPECT_EQ(world.commands().back(), "s@Y");
  world.d.clrTsDataBtn.click();
  EXPECT_EQ(world.commands().back(), "s>Y");
  EXPECT_FALSE(world.f.saveBtn.visible() || world.f.expertBtn.visible());
  EXPECT_TRUE(world.logButtonsEnabled(true));
  world.device.clearLog();
  world.dialogs.meanwhile = [&] { world.stay(Page::Setup); };
  world.d.clrTsDataBtn.click();
  EXPECT_TRUE(world.commands().empty()) << "the page was left before the answer";
  world.dialogs.meanwhile = nullptr;
  world.stay(Page::Data);
  world.device.addFault({.kind = FaultKind::Refuse});
  world.d.clrHistDataBtn.click();
  EXPECT_EQ(world.lost, 1);
}

TEST(DataPage, ShowsTheLogsOfItsDeviceOrOfFiles) {
  for (const Line line : {Line::Orvantis, Line::Tessara}) {
    for (const bool connected : {true, false}) {
      DataWorld world(makeProfile(line));
      world.main.link.connected = connected;
      layDataPage(world.main, false);
      EXPECT_EQ(world.d.histDataBtn.visible(), line == Line::Orvantis || !connected);
      EXPECT_EQ(world.d.cmDataBtn.visible(), !connected);
      EXPECT_EQ(world.d.histDataBtn.caption(), connected ? "Historical Log" : "Open Historical Log");
      EXPECT_EQ(world.d.clrTsDataBtn.enabled(), connected);
    }
  }
  simulator::Profile none;
  none.chartMemory = simulator::ChartFitted::None;
  DataWorld world(none);
  EXPECT_TRUE(readDataPage(world.main));
  EXPECT_FALSE(world.d.cmDataBtn.visible());
  layDataPage(world.main, true);
  world.device.addFault({.kind = FaultKind::Silent});
  EXPECT_FALSE(readDataPage(world.main));
}

}  // namespace
}  // namespace zephon
