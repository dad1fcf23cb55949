#include "shell/config_file.h"

#include <gtest/gtest.h>

#include "shell/configuration.h"
#include "shell/tool.h"

namespace zephon {
namespace {

using testing_support::Tool;

TEST(ConfigFile, ReadsByPositionAlone) {
  const struct {
    const char* text;
    ConfigFile expected;
  } cases[] = {
      {"7\t;COM Port\nTrue\t;x\nFalse\t;y\nDE\t;Language\n", {"7", true, false, "DE"}},
      {"7\t;COM Port\r\ntrue\t;x\r\nfalse\t;y\r\nDE\t;Language\r\n", {"7", true, false, "DE"}},
      {"12\twhatever\nt\nf\nFR", {"12", true, false, "FR"}},
      {"255\t;\nYes\t;\nno\t;\nEN\t;\n", {"255", false, false, "EN"}},
      {"0\t;\nT\t;\nT\t;\nEN\t;\n", {"1", true, true, "EN"}},
      {"256\t;\nT\t;\nT\t;\nEN\t;\n", {"1", true, true, "EN"}},
      {"COM4\t;\nT\t;\nT\t;\nEN\t;\n", {"1", true, true, "EN"}},
      {"9\t;COM Port\nT", {"9", true, false, "EN"}},
      {"", {"1", false, false, "EN"}},
  };
  for (const auto& one : cases) {
    const ConfigFile read = parseConfig(one.text);
    EXPECT_EQ(read.port, one.expected.port) << one.text;
    EXPECT_EQ(read.bannerDisplay, one.expected.bannerDisplay) << one.text;
    EXPECT_EQ(read.checkComSettings, one.expected.checkComSettings) << one.text;
    EXPECT_EQ(read.language, one.expected.language) << one.text;
  }
}

TEST(ConfigFile, WritesFourLinesWithTheirRemarks) {
  EXPECT_EQ(
      formatConfig({"7", true, false, "DE"}),
      "7\t;COM Port\nTrue\t;Banner Display Toggle\nFalse\t;Perform COM Port Settings Check\nDE\t;Language\n");
}

TEST(Configuration, WithoutAFileTheDefaultsHold) {
  Tool tool;
  tool.main.around.folders.program = tool.settings / "";
  readConfiguration(tool.main);
  EXPECT_EQ(tool.main.frame.COMlbl.caption(), "1");
  EXPECT_TRUE(tool.main.config.bannerDisplay);
  EXPECT_TRUE(tool.main.config.checkComSettings);
  EXPECT_EQ(tool.main.config.language, "EN");
}

TEST(Configuration, TheSavedNumberIsTheNextStartsPort) {
  Tool tool;
  tool.press(tool.main.frame.comBtn);
  tool.main.com.comNumEdit.edit(12);
  tool.press(tool.main.com.saveComBtn);
  EXPECT_EQ(tool.main.frame.COMlbl.caption(), "12");
  Tool next;
  next.main.around.folders.config = tool.settings / "";
  readConfiguration(next.main);
  EXPECT_EQ(next.main.frame.COMlbl.caption(), "12");
}

TEST(Configuration, ASaveThatFailsIsTold) {
  Tool tool;
  tool.main.around.folders.config = tool.settings.put("file", "in the way");
  saveComNumber(tool.main);
  EXPECT_EQ(tool.dialogs.texts(), std::vector<std::string>{tool.main.dict[47]});
}

}  // namespace
}  // namespace zephon
