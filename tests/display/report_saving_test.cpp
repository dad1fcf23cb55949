#include "display/report_saving.h"

#include <gtest/gtest.h>

#include "display/data_world.h"
#include "expert/expert_button.h"

namespace zephon {
namespace {

using testing_support::DataWorld;

// The data page of a device with a log, with what the dialogs are answered.
class ReportSaving : public DataWorld, public testing::Test {
 protected:
  ReportSaving() {
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

TEST_F(ReportSaving, ExpertReportIsAskedForWrittenAndOpened) {
  d.histDataBtn.click();
  dialogs.promptAnswer = "120";
  std::vector<bool> saveEnabled;
  dialogs.meanwhile = [&] { saveEnabled.push_back(f.saveBtn.enabled()); };
  pressExpert();
  EXPECT_EQ(kinds(), (Kinds{"prompt", "saveFile", "message", "openInViewer"}));
  EXPECT_EQ(saveEnabled, (std::vector<bool>{true, true, false, false}));
  EXPECT_TRUE(f.saveBtn.enabled());
  EXPECT_EQ(dialogs.shown()[1].text, "PCS Power Quality Report 03-05-2024 09.30.09.pdf");
  EXPECT_TRUE(isPdf());

  // The old one is asked about; without a viewer the user is told where the new one lies.
  folder.put("report.pdf", "old");
  dialogs.forget();
  dialogs.yes = false;
  pressExpert();
  EXPECT_EQ(kinds(), (Kinds{"prompt", "saveFile", "okCancel"}));
  EXPECT_EQ(folder.get("report.pdf"), "old");
  dialogs.forget();
  dialogs.yes = true;
  dialogs.hasViewer = false;
  pressExpert();
  EXPECT_EQ(kinds(), (Kinds{"prompt", "saveFile", "okCancel", "message", "openInViewer", "message"}));
  EXPECT_NE(dialogs.texts().back().find(folder / "report.pdf"), std::string::npos);
  EXPECT_TRUE(isPdf());

  // Nothing is opened that was not written, or not asked for.
  dialogs.saveAnswer = folder / "missing/report.pdf";
  dialogs.forget();
  pressExpert();
  EXPECT_EQ(kinds(), (Kinds{"prompt", "saveFile", "message"}));
  dialogs.saveAnswer.reset();
  dialogs.forget();
  pressExpert();
  EXPECT_EQ(kinds(), (Kinds{"prompt", "saveFile"}));
}

TEST_F(ReportSaving, TheLogOfEventsIsSavedAsAReportUnderAnyOtherName) {
  d.tsDataBtn.click();
  f.saveBtn.click();
  EXPECT_EQ(kinds(), (Kinds{"saveFile", "message", "openInViewer"}));
  EXPECT_TRUE(isPdf());
}

}  // namespace
}  // namespace zephon
