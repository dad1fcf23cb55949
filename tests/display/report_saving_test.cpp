#include "display/report_saving.h"

#include <gtest/gtest.h>

#include "display/data_world.h"
#include "expert/expert_button.h"

namespace zephon {
namespace {

using testing_support::DataWorld;

// The data page of a device with a log, with what the dialogs are answered.
struct ReportWorld : DataWorld {
  ReportWorld() {
    wireExpert(main);
    main.findings.report = [this] { saveExpertReport(main); };
    main.around.folders.program = ZEPHON_RESOURCES;
    dialogs.saveAnswer = folder / "report.pdf";
  }
  void pressExpert() {
    f.expertBtn.setValue(true);
    f.expertBtn.setValue(false);
  }
  std::vector<std::string> kinds() const {
    std::vector<std::string> all;
    for (const auto& one : dialogs.shown()) all.push_back(one.kind);
    return all;
  }
  bool isPdf() const { return folder.get("report.pdf").starts_with("%PDF-1.3"); }
};
using Kinds = std::vector<std::string>;

TEST(ReportSaving, ExpertReportIsAskedForWrittenAndOpened) {
  ReportWorld world;
  world.d.histDataBtn.click();
  world.dialogs.promptAnswer = "120";
  std::vector<bool> saveEnabled;
  world.dialogs.meanwhile = [&] { saveEnabled.push_back(world.f.saveBtn.enabled()); };
  world.pressExpert();
  EXPECT_EQ(world.kinds(), (Kinds{"prompt", "saveFile", "message", "openInViewer"}));
  EXPECT_EQ(saveEnabled, (std::vector<bool>{true, true, false, false}));
  EXPECT_TRUE(world.f.saveBtn.enabled());
  EXPECT_EQ(world.dialogs.shown()[1].text, "PCS Power Quality Report 03-05-2024 09.30.09.pdf");
  EXPECT_TRUE(world.isPdf());

  // The old one is asked about; without a viewer the user is told where the new one lies.
  world.folder.put("report.pdf", "old");
  world.dialogs.forget();
  world.dialogs.yes = false;
  world.pressExpert();
  EXPECT_EQ(world.kinds(), (Kinds{"prompt", "saveFile", "okCancel"}));
  EXPECT_EQ(world.folder.get("report.pdf"), "old");
  world.dialogs.forget();
  world.dialogs.yes = true;
  world.dialogs.hasViewer = false;
  world.pressExpert();
  EXPECT_EQ(world.kinds(), (Kinds{"prompt", "saveFile", "okCancel", "message", "openInViewer", "message"}));
  EXPECT_NE(world.dialogs.texts().back().find(world.folder / "report.pdf"), std::string::npos);
  EXPECT_TRUE(world.isPdf());

  world.dialogs.forget();
  world.dialogs.saveAnswer.reset();
  world.pressExpert();
  EXPECT_EQ(world.kinds(), (Kinds{"prompt", "saveFile"})) << "cancelled";
}

TEST(ReportSaving, AFolderThatCannotBeWrittenIsToldAndOpensNothing) {
  ReportWorld world;
  world.d.histDataBtn.click();
  world.dialogs.saveAnswer = world.folder / "missing/report.pdf";
  world.pressExpert();
  EXPECT_EQ(world.kinds(), (Kinds{"prompt", "saveFile", "message"}));
  EXPECT_TRUE(world.f.saveBtn.enabled());
}

TEST(ReportSaving, TheLogOfEventsIsSavedAsAReportUnderAnyOtherName) {
  ReportWorld world;
  world.d.tsDataBtn.click();
  world.f.saveBtn.click();
  EXPECT_EQ(world.kinds(), (Kinds{"saveFile", "message", "openInViewer"}));
  EXPECT_TRUE(world.isPdf());
}

TEST(ReportSaving, TheSettingsAreSavedAsText) {
  ReportWorld world;
  world.stay(Page::Setup);
  world.d.histDataBtn.setVisible(false);
  world.d.tsDataBtn.setVisible(false);
  world.main.pages.setupOn = true;
  world.main.limits = {90, 100, 105, 125, 130, 140};
  world.dialogs.saveAnswer = world.folder / "setup.txt";
  saveSetupReport(world.main);
  EXPECT_EQ(world.dialogs.texts(), Kinds{"PCS Setup Report 03-05-2024 09.30.00.txt"});
  EXPECT_NE(world.folder.get("setup.txt").find("Over Voltage Shutdown: 140 V\r\n"), std::string::npos);
}

}  // namespace
}  // namespace zephon
