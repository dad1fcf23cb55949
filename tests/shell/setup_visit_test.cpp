#include <gtest/gtest.h>

#include "shell/tool.h"

namespace zephon {
namespace {

using testing_support::Tool;

TEST(SetupVisit, SavesWhatWasReadAsAReport) {
  for (const int line : {0, 1}) {
    simulator::Profile profile;
    if (line == 1) profile = {.line = simulator::Line::Tessara, .firmware = "2.00"};
    Tool tool(profile);
    Button& save = tool.main.frame.saveBtn;
    tool.dialogs.saveAnswer = tool.settings / "setup.txt";
    tool.press(tool.main.frame.setupBtn);
    ASSERT_TRUE(save.visible());
    save.click();
    const std::string report = tool.settings.get("setup.txt");
    EXPECT_TRUE(
        report.starts_with(line == 0 ? "Orvantis PCS Setup Report\r\n" : "Tessara PCS Setup Report\r\n"));
    const std::string shutdown = "Over Voltage Shutdown: " + std::to_string(tool.main.limits.OVco) + " V\r\n";
    EXPECT_NE(report.find(shutdown), std::string::npos) << report;
    EXPECT_GT(tool.main.limits.OVco, 100);
    tool.press(tool.main.frame.setupBtn);
    EXPECT_FALSE(save.visible());
  }
}

}  // namespace
}  // namespace zephon
