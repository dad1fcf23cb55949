#include "display/saving.h"

#include <gtest/gtest.h>

#include "display/data_world.h"
#include "logs/event_tree.h"

namespace zephon {
namespace {

using simulator::Line;
using simulator::makeProfile;
using testing_support::DataWorld;

using Seen = std::vector<std::string>;

// As a .csv file keeps events: without the magnitude of what has none.
LogTable<8> asFiled(LogTable<8> events) {
  for (auto& event : events) event[7] = hasMagnitude(event[6]) ? event[7] : 0;
  return events;
}

// The texts of a tree, with every node in it.
std::string textsOf(const Tree& tree) {
  std::string texts;
  const auto walk = [&](auto& self, TreeNode node) -> void {
    for (std::size_t i = 0; i < tree.source()->childCount(node); ++i) {
      const TreeNode child = tree.source()->child(node, i);
      texts += tree.source()->text(child) + "\n";
      self(self, child);
    }
  };
  if (tree.source()) walk(walk, kTreeRoot);
  return texts;
}

struct Round {
  Button DataElements::*log;
  bool raw;
  const char* name;
};

class RoundTrip : public ::testing::TestWithParam<Round> {};

// Downloaded, saved, and opened again without the device: the same tables, the same tree.
TEST_P(RoundTrip, AFileBringsBackWhatWasSaved) {
  DataWorld world;
  Button& button = world.d.*GetParam().log;
  button.click();
  const Logs downloaded = world.main.logs;
  const std::string tree = textsOf(world.d.TreeView1);
  if (GetParam().raw) world.f.saveBtn.click(MouseButton::Right);
  world.dialogs.saveAnswer = world.folder / (GetParam().raw ? "log.dat" : "log.csv");
  world.f.saveBtn.click();
  EXPECT_EQ(world.dialogs.shown().size(), 1U);
  world.unplug();
  EXPECT_TRUE(button.caption().starts_with("Open "));
  world.main.link.userID = world.main.link.chipID = world.main.link.firmwareVersion = "";
  world.main.logs = {};
  world.dialogs.openAnswer = world.dialogs.saveAnswer;
  button.click();
  ASSERT_EQ(world.dialogs.shown().size(), 2U) << world.dialogs.shown().back().detail;
  const Logs& opened = world.main.logs;
  EXPECT_EQ(opened.shown, downloaded.shown);
  EXPECT_TRUE(opened.tsData == (GetParam().raw ? downloaded.tsData : asFiled(downloaded.tsData)));
  EXPECT_TRUE(opened.histData == downloaded.histData);
  EXPECT_TRUE(textsOf(world.d.TreeView1) == tree);
  EXPECT_TRUE(opened.rawLogBuffer == (GetParam().raw ? downloaded.rawLogBuffer : ""));
  ASSERT_EQ(opened.chartData.size(), downloaded.chartData.size());
  for (std::size_t r = 0; r < opened.chartData.size(); ++r) {
    EXPECT_NEAR(opened.chartData[r][0], downloaded.chartData[r][0], 1e-6);  // times are in whole seconds
    EXPECT_TRUE(std::equal(opened.chartData[r].begin() + 1, opened.chartData[r].end(),
                           downloaded.chartData[r].begin() + 1));
  }
  EXPECT_EQ(world.main.link.userID, "ZEPHON SIM");
  EXPECT_EQ(world.main.link.chipID, "4C.5A.17");
  EXPECT_EQ(world.main.link.firmwareVersion, "1.KD1");
  EXPECT_TRUE(world.f.saveBtn.visible() && world.f.expertBtn.visible());
}

INSTANTIATE_TEST_SUITE_P(Forms, RoundTrip,
                         ::testing::Values(Round{&DataElements::tsDataBtn, false, "EventsCsv"},
                                           Round{&DataElements::tsDataBtn, true, "EventsDat"},
                                           Round{&DataElements::histDataBtn, false, "HistoryCsv"},
                                           Round{&DataElements::histDataBtn, true, "HistoryDat"},
                                           Round{&DataElements::cmDataBtn, false, "ChartCsv"}),
                         [](const auto& one) { return one.param.name; });

TEST(Saving, IsRoutedByWhatIsOnTheScreenAndByTheRawBytes) {
  DataWorld world;
  Main& main = world.main;
  Logs& logs = main.logs;
  const auto rawBytes = [&](std::size_t count) { logs.rawLogBuffer.assign(count, 'x'); };
  EXPECT_EQ(whatToSave(main), Saved::Nothing);
  logs.tsData.resize(1);
  EXPECT_EQ(whatToSave(main), Saved::Events);
  logs.histData.resize(1);
  EXPECT_EQ(whatToSave(main), Saved::Events) << "never dimensioned";
  logs.histData.resize(2);
  EXPECT_EQ(whatToSave(main), Saved::History);
  rawBytes(8196);
  EXPECT_EQ(whatToSave(main), Saved::Events);
  rawBytes(10'000);
  EXPECT_EQ(whatToSave(main), Saved::Nothing);
  rawBytes(100'000);
  EXPECT_EQ(whatToSave(main), Saved::Nothing);
  rawBytes(110'599);
  EXPECT_EQ(whatToSave(main), Saved::History);
  logs.shown = ShownLog::Chart;
  EXPECT_EQ(whatToSave(main), Saved::InternalChart);
  rawBytes(0);
  EXPECT_EQ(whatToSave(main), Saved::LiveChart) << "read from a file";
  main.chart.vlnChartBtn.setVisible(true);
  rawBytes(130'000);
  EXPECT_EQ(whatToSave(main), Saved::LiveChart);
  rawBytes(130'001);
  EXPECT_EQ(whatToSave(main), Saved::InternalChart);
  main.scope.CH1togBtn.setVisible(true);
  EXPECT_EQ(whatToSave(main), Saved::Scope);
  main.scope.CH1togBtn.setVisible(false);
  main.chart.vlnChartBtn.setVisible(false);
  logs.shown = ShownLog::None;
  world.d.histDataBtn.setVisible(false);
  EXPECT_EQ(whatToSave(main), Saved::Nothing);
  main.link.modelLine = 1;
  EXPECT_EQ(whatToSave(main), Saved::Events);
  world.d.tsDataBtn.setVisible(false);
  world.stay(Page::Measurement);
  EXPECT_EQ(whatToSave(main), Saved::Report);
}

TEST(Saving, OffersNameFolderAndForm) {
  DataWorld world;
  world.main.around.folders.program = "/program";
  world.d.tsDataBtn.click();
  world.f.saveBtn.click();
  world.f.saveBtn.click(MouseButton::Right);
  EXPECT_EQ(world.f.saveBtn.caption(), "Raw");
  EXPECT_EQ(world.f.saveBtn.tooltip(), "Save Raw");
  world.main.around.folders.desktop = "/desktop";
  world.f.saveBtn.click();
  world.f.saveBtn.click(MouseButton::Right);
  EXPECT_EQ(world.f.saveBtn.caption() + world.f.saveBtn.tooltip(), "Save");
  const auto& shown = world.dialogs.shown();
  ASSERT_EQ(shown.size(), 2U);
  EXPECT_EQ(shown[0].text, "PCS Time Stamped Log 03-05-2024 09.30.01.csv");
  EXPECT_EQ(shown[0].detail, "/program");
  EXPECT_EQ(shown[1].text, "PCS Time Stamped Log 03-05-2024 09.30.01.dat");
  EXPECT_EQ(shown[1].detail, "/desktop");
}

TEST(Saving, AsksBeforeItReplacesAndTellsWhatFailed) {
  DataWorld world;
  world.d.tsDataBtn.click();
  world.dialogs.saveAnswer = world.folder.put("old.csv", "old");
  world.dialogs.yes = false;
  world.f.saveBtn.click();
  EXPECT_EQ(world.dialogs.texts().back(), world.main.dict[49] + " " + world.main.dict[48]);
  EXPECT_EQ(world.folder.get("old.csv"), "old");
  world.dialogs.yes = true;
  world.f.saveBtn.click();
  EXPECT_TRUE(world.folder.get("old.csv").starts_with("03/05/2024 09:30:01\r\nID: ZEPHON SIM\r\n"));
  const struct {
    std::string path, reason;
  } failures[] = {{world.folder / "missing/log.csv", "No such file or directory"},
                  {"/dev/full/log.csv", "Not a directory"},
                  {world.folder / "report.pdf", "Reports can't be written yet"}};
  for (const auto& failure : failures) {
    world.dialogs.forget();
    world.dialogs.saveAnswer = failure.path;
    world.f.saveBtn.click();
    EXPECT_EQ(world.dialogs.texts().back(), world.main.dict[47]) << failure.path;
    EXPECT_NE(world.dialogs.shown().back().detail.find(failure.reason), std::string::npos) << failure.path;
  }
  // A page that is left while the question stands saves nothing.
  world.dialogs.saveAnswer = world.folder / "late.csv";
  world.dialogs.meanwhile = [&] { world.stay(Page::Setup); };
  world.f.saveBtn.click();
  EXPECT_EQ(world.folder.get("late.csv"), "");
}

}  // namespace
}  // namespace zephon
