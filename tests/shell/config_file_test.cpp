#include "shell/config_file.h"

#include <gtest/gtest.h>

#include "shell/configuration.h"
#include "shell/tool.h"

namespace zephon {
namespace {

using testing_support::Tool;

TEST(ConfigFile, ReadsByPositionAloneAndWritesRemarks) {
  const std::pair<const char*, ConfigFile> cases[] = {
      {"7\t;COM Port\r\ntrue\t;x\r\nfalse\t;y\r\nDE\t;Language\r\n", {"7", true, false, "DE"}},
      {"12\twhatever\nt\nf\nFR", {"12", true, false, "FR"}},
      {"255\t;\nYes\t;\nno\t;\nEN\t;\n", {"255", false, false, "EN"}},
      {"256\t;\nT\t;\nT\t;\nEN\t;\n", {"1", true, true, "EN"}},
      {"", {"1", false, false, "EN"}}};
  for (const auto& [text, expected] : cases)
    EXPECT_EQ(formatConfig(parseConfig(text)), formatConfig(expected)) << text;
  EXPECT_EQ(
      formatConfig({"7", true, false, "DE"}),
      "7\t;COM Port\nTrue\t;Banner Display Toggle\nFalse\t;Perform COM Port Settings Check\nDE\t;Language\n");
}

TEST(Configuration, TheSavedNumberIsTheNextStartsPortAndTheDefaultsHoldWithoutAFile) {
  Tool tool;
  tool.press(tool.main.frame.comBtn);
  tool.main.com.comNumEdit.edit(12);
  tool.press(tool.main.com.saveComBtn);
  Tool next;
  next.main.around.folders.config = tool.settings / "";
  readConfiguration(next.main);
  EXPECT_EQ(next.main.frame.COMlbl.caption(), "12");
  next.main.around.folders.config = next.main.around.folders.program = next.settings / "";
  readConfiguration(next.main);
  EXPECT_EQ(next.main.frame.COMlbl.caption() + next.main.config.language, "1EN");
}

}  // namespace
}  // namespace zephon
