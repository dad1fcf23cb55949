#include "display/saving.h"

#include <gtest/gtest.h>

#include "display/data_world.h"

namespace zephon {
namespace {

using testing_support::DataWorld;

using D = DataElements;
class Saving : public DataWorld, public testing::Test {};

// All that a tree shows.
std::string textsOf(const TreeSource& tree, TreeNode node = kTreeRoot) {
  std::string texts = node == kTreeRoot ? "" : tree.text(node) + "\n";
  for (std::size_t i = 0; i < tree.childCount(node); ++i) texts += textsOf(tree, tree.child(node, i));
  return texts;
}

// Downloaded, saved, and opened again without the device: as many rows, the same tree.
TEST(SavedFiles, BringBackWhatWasSaved) {
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
    world.dialogs.saveAnswer = world.dialogs.openAnswer = world.folder / (raw ? "log.dat" : "log.csv");
    world.f.saveBtn.click();
    world.unplug();
    Link& link = world.main.link;
    link.userID = link.chipID = link.firmwareVersion = "";
    world.main.logs = {};
    button.click();
    ASSERT_EQ(world.dialogs.shown().size(), 2U) << world.dialogs.shown().back().detail;
    const Logs& opened = world.main.logs;
    EXPECT_EQ(opened.shown, downloaded.shown);
    EXPECT_EQ(opened.tsData.size(), downloaded.tsData.size());
    EXPECT_EQ(opened.histData.size(), downloaded.histData.size());
    EXPECT_EQ(opened.chartData.size(), downloaded.chartData.size());
    EXPECT_TRUE(opened.rawLogBuffer == (raw ? downloaded.rawLogBuffer : ""));
    EXPECT_TRUE(tree() == treeBefore);
    EXPECT_EQ(link.userID + " " + link.chipID + " " + link.firmwareVersion, "ZEPHON SIM 4C.5A.17 1.KD1");
    EXPECT_TRUE(world.f.saveBtn.visible() && world.f.expertBtn.visible());
  }
}

TEST_F(Saving, IsRoutedByWhatIsOnTheScreenAndByTheRawBytes) {
  const auto expect = [&](std::size_t rawBytes, Saved what) {
    main.logs.rawLogBuffer.assign(rawBytes, 'x');
    EXPECT_EQ(whatToSave(main), what) << rawBytes;
  };
  expect(0, Saved::Nothing);
  main.logs.tsData.resize(1);
  main.logs.histData.resize(1);
  expect(0, Saved::Events);  // a history of one row was never dimensioned
  expect(10'000, Saved::Nothing);
  main.logs.shown = ShownLog::Chart;
  expect(32'768, Saved::InternalChart);
  expect(0, Saved::LiveChart);  // read from a file
  main.chart.vlnChartBtn.setVisible(true);
  expect(130'000, Saved::LiveChart);
  expect(130'001, Saved::InternalChart);
  for (Button* button : {&main.chart.vlnChartBtn, &d.histDataBtn}) button->setVisible(false);
  main.logs.shown = ShownLog::None;
  main.link.modelLine = 1;
  expect(0, Saved::Events);
}

TEST_F(Saving, OffersNameFolderAndFormAsksAndTellsWhatFailed) {
  main.around.folders.program = "/program";
  d.tsDataBtn.click();
  f.saveBtn.click();
  f.saveBtn.click(MouseButton::Right);
  EXPECT_EQ(f.saveBtn.caption() + "," + f.saveBtn.tooltip(), "Raw,Save Raw");
  main.around.folders.desktop = "/desktop";
  f.saveBtn.click();
  f.saveBtn.click(MouseButton::Right);
  EXPECT_EQ(f.saveBtn.caption() + "," + f.saveBtn.tooltip(), ",Save");
  const std::string name = "PCS Time Stamped Log 03-05-2024 09.30.01.";
  EXPECT_EQ(dialogs.texts(), (std::vector<std::string>{name + "pdf", name + "dat"}));
  EXPECT_EQ(dialogs.shown()[0].detail + dialogs.shown()[1].detail, "/program/desktop");

  dialogs.saveAnswer = folder.put("old.csv", "old");
  dialogs.yes = false;
  f.saveBtn.click();
  EXPECT_EQ(dialogs.texts().back(), main.dict[49] + " " + main.dict[48]);
  EXPECT_EQ(folder.get("old.csv"), "old");
  dialogs.yes = true;
  f.saveBtn.click();
  EXPECT_TRUE(folder.get("old.csv").starts_with("03/05/2024 09:30:01\r\nID: ZEPHON SIM\r\n"));
  dialogs.saveAnswer = folder / "missing/log.csv";
  f.saveBtn.click();
  EXPECT_EQ(dialogs.texts().back(), main.dict[47]);
  EXPECT_NE(dialogs.shown().back().detail.find("No such file or directory"), std::string::npos);
  dialogs.saveAnswer = folder.put("late.csv", "old");
  for (const char* question : {"saveFile", "okCancel"}) {
    stay(Page::Data);
    dialogs.meanwhile = [&] {
      if (dialogs.shown().back().kind == question) stay(Page::Setup);
    };
    f.saveBtn.click();
    EXPECT_EQ(folder.get("late.csv"), "old") << "the page was left while the question stood";
  }
}

}  // namespace
}  // namespace zephon
