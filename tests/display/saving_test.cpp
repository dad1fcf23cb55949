#include "display/saving.h"

#include <gtest/gtest.h>

#include "display/data_world.h"
#include "logs/event_tree.h"

namespace zephon {
namespace {

using testing_support::DataWorld;

using D = DataElements;

// As a .csv file keeps events: without the magnitude of what has none.
LogTable<8> asFiled(LogTable<8> events) {
  for (auto& event : events) event[7] = hasMagnitude(event[6]) ? event[7] : 0;
  return events;
}

// Times of a file are in whole seconds.
bool sameChart(const LogTable<9>& a, const LogTable<9>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto& one, const auto& other) {
    return std::abs(one[0] - other[0]) < 1e-6 && std::equal(one.begin() + 1, one.end(), other.begin() + 1);
  });
}

// All that a tree shows.
std::string textsOf(const TreeSource& tree, TreeNode node = kTreeRoot) {
  std::string texts = node == kTreeRoot ? "" : tree.text(node) + "\n";
  for (std::size_t i = 0; i < tree.childCount(node); ++i) texts += textsOf(tree, tree.child(node, i));
  return texts;
}

// Downloaded, saved, and opened again without the device: the same tables, the same tree.
TEST(Saving, AFileBringsBackWhatWasSaved) {
  const std::pair<Button D::*, bool> rounds[] = {{&D::tsDataBtn, false},
                                                 {&D::tsDataBtn, true},
                                                 {&D::histDataBtn, false},
                                                 {&D::histDataBtn, true},
                                                 {&D::cmDataBtn, false}};
  for (const auto& [log, raw] : rounds) {
    DataWorld world;
    Button& button = world.d.*log;
    button.click();
    const Logs downloaded = world.main.logs;
    const auto tree = [&] { return world.d.TreeView1.empty() ? "" : textsOf(*world.d.TreeView1.source()); };
    const std::string treeBefore = tree();
    if (raw) world.f.saveBtn.click(MouseButton::Right);
    world.dialogs.saveAnswer = world.folder / (raw ? "log.dat" : "log.csv");
    world.f.saveBtn.click();
    world.unplug();
    world.main.link.userID = world.main.link.chipID = world.main.link.firmwareVersion = "";
    world.main.logs = {};
    world.dialogs.openAnswer = world.dialogs.saveAnswer;
    button.click();
    ASSERT_EQ(world.dialogs.shown().size(), 2U) << world.dialogs.shown().back().detail;
    const Logs& opened = world.main.logs;
    EXPECT_EQ(opened.shown, downloaded.shown);
    EXPECT_TRUE(opened.tsData == (raw ? downloaded.tsData : asFiled(downloaded.tsData)));
    EXPECT_TRUE(opened.histData == downloaded.histData);
    EXPECT_TRUE(sameChart(opened.chartData, downloaded.chartData));
    EXPECT_TRUE(opened.rawLogBuffer == (raw ? downloaded.rawLogBuffer : ""));
    EXPECT_TRUE(tree() == treeBefore);
    const Link& link = world.main.link;
    EXPECT_EQ(link.userID + " " + link.chipID + " " + link.firmwareVersion, "ZEPHON SIM 4C.5A.17 1.KD1");
    EXPECT_TRUE(world.f.saveBtn.visible() && world.f.expertBtn.visible());
  }
}

TEST(Saving, IsRoutedByWhatIsOnTheScreenAndByTheRawBytes) {
  DataWorld world;
  Main& main = world.main;
  const auto expect = [&](std::size_t rawBytes, Saved what) {
    main.logs.rawLogBuffer.assign(rawBytes, 'x');
    EXPECT_EQ(whatToSave(main), what) << rawBytes;
  };
  expect(0, Saved::Nothing);
  main.logs.tsData.resize(1);
  main.logs.histData.resize(1);
  expect(0, Saved::Events);  // a history of one row was never dimensioned
  main.logs.histData.resize(2);
  expect(0, Saved::History);
  expect(8196, Saved::Events);
  expect(10'000, Saved::Nothing);
  expect(100'000, Saved::Nothing);
  expect(110'599, Saved::History);
  main.logs.shown = ShownLog::Chart;
  expect(32'768, Saved::InternalChart);
  expect(0, Saved::LiveChart);  // read from a file
  main.logs.shown = ShownLog::None;
  main.chart.vlnChartBtn.setVisible(true);
  expect(130'000, Saved::LiveChart);
  expect(130'001, Saved::InternalChart);
  main.scope.CH1togBtn.setVisible(true);
  expect(0, Saved::Scope);
  main.scope.CH1togBtn.setVisible(false);
  main.chart.vlnChartBtn.setVisible(false);
  world.d.histDataBtn.setVisible(false);
  expect(0, Saved::Nothing);
  main.link.modelLine = 1;
  expect(0, Saved::Events);
  world.d.tsDataBtn.setVisible(false);
  world.stay(Page::Measurement);
  expect(0, Saved::Report);
}

TEST(Saving, OffersNameFolderAndFormAsksAndTellsWhatFailed) {
  DataWorld world;
  world.main.around.folders.program = "/program";
  world.d.tsDataBtn.click();
  world.f.saveBtn.click();
  world.f.saveBtn.click(MouseButton::Right);
  EXPECT_EQ(world.f.saveBtn.caption() + "," + world.f.saveBtn.tooltip(), "Raw,Save Raw");
  world.main.around.folders.desktop = "/desktop";
  world.f.saveBtn.click();
  world.f.saveBtn.click(MouseButton::Right);
  EXPECT_EQ(world.f.saveBtn.caption() + "," + world.f.saveBtn.tooltip(), ",Save");
  const std::string name = "PCS Time Stamped Log 03-05-2024 09.30.01.";
  EXPECT_EQ(world.dialogs.texts(), (std::vector<std::string>{name + "pdf", name + "dat"}));
  EXPECT_EQ(world.dialogs.shown()[0].detail + world.dialogs.shown()[1].detail, "/program/desktop");

  world.dialogs.saveAnswer = world.folder.put("old.csv", "old");
  world.dialogs.yes = false;
  world.f.saveBtn.click();
  EXPECT_EQ(world.dialogs.texts().back(), world.main.dict[49] + " " + world.main.dict[48]);
  EXPECT_EQ(world.folder.get("old.csv"), "old");
  world.dialogs.yes = true;
  world.f.saveBtn.click();
  EXPECT_TRUE(world.folder.get("old.csv").starts_with("03/05/2024 09:30:01\r\nID: ZEPHON SIM\r\n"));
  const std::pair<std::string, const char*> failures[] = {
      {world.folder / "missing/log.csv", "No such file or directory"},
      {"/dev/full/log.csv", "Not a directory"}};
  for (const auto& [path, reason] : failures) {
    world.dialogs.saveAnswer = path;
    world.f.saveBtn.click();
    EXPECT_EQ(world.dialogs.texts().back(), world.main.dict[47]) << path;
    EXPECT_NE(world.dialogs.shown().back().detail.find(reason), std::string::npos) << path;
  }
  world.dialogs.saveAnswer = world.folder.put("late.csv", "old");
  for (const char* question : {"saveFile", "okCancel"}) {
    world.stay(Page::Data);
    world.dialogs.meanwhile = [&] {
      if (world.dialogs.shown().back().kind == question) world.stay(Page::Setup);
    };
    world.f.saveBtn.click();
    EXPECT_EQ(world.folder.get("late.csv"), "old") << "the page was left while the question stood";
  }
}

}  // namespace
}  // namespace zephon
