#include "shell/dictionary.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "files/dictionary_file.h"
#include "shell/tool.h"

namespace zephon {
namespace {

using testing_support::Tool;

std::string numbered(std::size_t lines, const std::string& word) {
  std::string text;
  for (std::size_t i = 0; i < lines; ++i) text += word + " " + std::to_string(i) + "\n";
  return text;
}

TEST(DictionaryFile, LineNumberIsTheKey) {
  const struct {
    std::string text;
    std::size_t entries;
    const char* fault;
  } cases[] = {
      {numbered(271, "w"), 271, ""},
      {numbered(300, "w"), 300, ""},
      {"\xEF\xBB\xBF" + numbered(271, "w"), 271, ""},
      {numbered(270, "w"), 270, "it has 270 lines where 271 are needed"},
      {"", 0, "it has 0 lines where 271 are needed"},
      {numbered(271, "w\xFF"), 271, "it is not UTF-8 text"},
      {numbered(271, std::string("w\0", 2)), 271, "it is not UTF-8 text"},
  };
  for (const auto& one : cases) {
    const DictionaryFile file = parseDictionary(one.text);
    EXPECT_EQ(file.entries.size(), one.entries);
    EXPECT_EQ(file.fault, one.fault);
    if (file.fault.empty()) {
      EXPECT_EQ(file.entries[0], "w 0");
      EXPECT_EQ(file.entries[270], "w 270");
    }
  }
  EXPECT_EQ(parseDictionary("a\r\nb\r\n").entries, (std::vector<std::string>{"a", "b"}));
}

TEST(DictionaryFile, AnyNameThatHoldsTheSuffixIsALanguage) {
  EXPECT_EQ(languagesAmong({"DE.dictionary", "EN.DICTIONARY", "FR.dictionary.old", "readme.txt"}),
            (std::vector<std::string>{"DE", "EN", "FR"}));
}

class Languages : public ::testing::Test {
 protected:
  Languages() {
    std::ifstream english(ZEPHON_RESOURCES "/EN.dictionary");
    folder.put("EN.dictionary", std::string(std::istreambuf_iterator<char>(english), {}));
    folder.put("DE.dictionary", numbered(271, "Wort"));
    folder.put("XX.dictionary", "short\n");
    tool.main.around.folders.program = folder / "";
    EXPECT_EQ(loadDictionary(tool.main), "");
    tool.press(tool.main.frame.comBtn);
  }

  void choose(const std::string& language) {
    const auto& items = tool.main.com.langCombo.items();
    const auto found = std::find(items.begin(), items.end(), language);
    ASSERT_NE(found, items.end());
    tool.main.com.langCombo.choose(static_cast<int>(found - items.begin()));
  }

  TempFolder folder;
  Tool tool;
};

TEST_F(Languages, AChoiceShowsAtOnceAndIsKept) {
  EXPECT_EQ(tool.main.com.langCombo.text(), "EN");
  choose("DE");
  EXPECT_EQ(tool.main.setup.updateLimsBtn.caption(), "Wort 32");
  EXPECT_EQ(tool.main.measurement.Ilbl.tooltip(), "Wort 140 RMS Wort 143");
  EXPECT_EQ(tool.main.findings.findingTexts[55], "Wort 270");
  EXPECT_NE(tool.settings.get("config.txt").find("DE\t;Language"), std::string::npos);
  EXPECT_TRUE(tool.dialogs.shown().empty());
}

TEST_F(Languages, ABrokenOneLeavesTheOldOne) {
  choose("XX");
  EXPECT_EQ(tool.main.com.langCombo.text() + tool.main.config.language, "ENEN");
  EXPECT_EQ(tool.main.setup.updateLimsBtn.caption(), "Update Limits");
  ASSERT_EQ(tool.dialogs.shown().size(), 1U);
  EXPECT_NE(tool.dialogs.shown()[0].detail.find("1 lines where 271"), std::string::npos);
}

TEST(Dictionary, LongTextsGetSmallLetters) {
  Tool tool;
  EXPECT_EQ(tool.main.measurement.clrEUbtn.fontSize(), 12);  // "Reset"
  TempFolder folder;
  folder.put("EN.dictionary", numbered(271, "Zur\u00FCck"));
  tool.main.around.folders.program = folder / "";
  ASSERT_EQ(loadDictionary(tool.main), "");
  EXPECT_EQ(tool.main.measurement.clrEUbtn.fontSize(), 10);
  EXPECT_EQ(tool.main.data.tsDataBtn.fontSize(), 10);
}

}  // namespace
}  // namespace zephon
