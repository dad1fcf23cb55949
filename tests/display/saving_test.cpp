#include "display/saving.h"

#include <gtest/gtest.h>

#include "display/data_world.h"
#include "display/report_saving.h"
#include "expert/expert_button.h"
#include "form/words.h"

namespace zephon {
namespace {

using testing_support::DataWorld;

using D = DataElements;
class Saving : public DataWorld, public testing::Test {
 protected:
  // The boxes that a press shows, one after the other.
  std::string boxesOf(Button& button) {
    dialogs.forget();
    button.click();
    std::string kinds;
    for (const auto& one : dialogs.shown()) kinds += one.kind + ' ';
    return kinds;
  }
};

// Opened again without the device; that the rows are the same is seen on a real line.
TEST(SavedFiles, BringBackTheirDevice) {
  const std::tuple<Button D::*, bool, const char*> rounds[] = {{&D::tsDataBtn, false, "log.csv"},
                                                               {&D::histDataBtn, true, "log.dat"}};
  for (const auto& [log, raw, file] : rounds) {
    DataWorld world;
    Link& link = world.main.link;
    (world.d.*log).click();
    const std::string bytes = raw ? world.main.logs.rawLogBuffer : "";
    if (raw) world.f.saveBtn.click(MouseButton::Right);
    world.dialogs.saveAnswer = world.dialogs.openAnswer = world.folder / file;
    world.f.saveBtn.click();
    world.unplug();
    EXPECT_EQ(link.modelLine, 0) << "a log shown again keeps its line";
    link.userID = link.chipID = link.firmwareVersion = "";
    world.main.logs = {};
    (world.d.*log).click();
    ASSERT_EQ(world.dialogs.shown().size(), 2U) << world.dialogs.shown().back().detail;
    EXPECT_TRUE(world.main.logs.rawLogBuffer == bytes && !world.d.TreeView1.empty());
    EXPECT_EQ(link.userID + " " + link.chipID + " " + link.firmwareVersion, "ZEPHON SIM 4C.5A.17 1.KD1");
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
}

TEST_F(Saving, OffersNameFolderAndFormAsksAndTellsWhatFailed) {
  main.around.folders.desktop = "/desktop";
  d.tsDataBtn.click();
  f.saveBtn.click();
  f.saveBtn.click(MouseButton::Right);
  EXPECT_EQ(f.saveBtn.caption() + "," + f.saveBtn.tooltip(), "Raw,Save Raw");
  f.saveBtn.click();
  f.saveBtn.click(MouseButton::Right);
  const std::string name = "PCS Time Stamped Log 03-05-2024 09.30.01.";
  EXPECT_EQ(dialogs.texts(), (std::vector<std::string>{name + "pdf", name + "dat"}));
  EXPECT_EQ(dialogs.shown()[0].detail, "/desktop");
  main.logs.rawLogBuffer.clear();  // as of a log that was read from a .csv file
  f.saveBtn.click(MouseButton::Right);
  f.saveBtn.click();
  f.saveBtn.click(MouseButton::Right);
  EXPECT_EQ(dialogs.shown()[2].text + dialogs.shown()[3].text, words::kNoRawBytes.english + name + "pdf");
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

TEST_F(Saving, AReportIsAskedForWrittenAndOpened) {
  wireExpert(main);
  main.findings.report = [this] { saveExpertReport(main); };
  main.around.folders.program = ZEPHON_RESOURCES;
  dialogs.saveAnswer = folder / "report.pdf";
  dialogs.promptAnswer = "120";
  const auto isPdf = [&] { return folder.get("report.pdf").starts_with("%PDF-1.3"); };
  d.histDataBtn.click();
  EXPECT_EQ(boxesOf(f.expertBtn), "prompt saveFile message openInViewer ");
  EXPECT_EQ(dialogs.shown()[1].text, "PCS Power Quality Report 03-05-2024 09.30.09.pdf");
  EXPECT_TRUE(isPdf() && f.saveBtn.enabled());
  folder.put("report.pdf", "old");
  dialogs.yes = false;
  EXPECT_EQ(boxesOf(f.expertBtn), "prompt saveFile okCancel ");
  EXPECT_EQ(folder.get("report.pdf"), "old");
  dialogs.yes = true;
  dialogs.hasViewer = false;  // then the user is told where it lies
  EXPECT_EQ(boxesOf(f.expertBtn), "prompt saveFile okCancel message openInViewer message ");
  EXPECT_NE(dialogs.texts().back().find(folder / "report.pdf"), std::string::npos);
  EXPECT_TRUE(isPdf());
  dialogs.saveAnswer = folder / "missing/report.pdf";
  EXPECT_EQ(boxesOf(f.expertBtn), "prompt saveFile message ") << "what was not written is not opened";
  EXPECT_EQ(dialogs.texts().back(), main.dict[47]);
  d.tsDataBtn.click();  // events are saved as a report under any name but a .csv file's
  EXPECT_EQ(boxesOf(f.saveBtn), "saveFile message ");
  EXPECT_EQ(dialogs.texts().back(), main.dict[47]);
  d.histDataBtn.click();
  dialogs.saveAnswer = folder / "late.pdf";
  dialogs.meanwhile = [&] {
    if (dialogs.shown().back().kind == "saveFile") unplug();
  };
  f.expertBtn.click();
  EXPECT_TRUE(folder.get("late.pdf").starts_with("%PDF-1.3")) << "the link was lost while the question stood";
}

}  // namespace
}  // namespace zephon
