#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <span>

#include "files/dictionary_file.h"
#include "form/words.h"
#include "shell/dictionary.h"
#include "shell/tool.h"
#include "text/windows1252.h"

// The language files: what one must be, those that are shipped beside the English one, and the choice of one.

namespace zephon {
namespace {

std::string numbered(std::size_t lines, const std::string& word) {
  std::string text;
  for (std::size_t i = 0; i < lines; ++i) text += word + " " + std::to_string(i) + "\n";
  return text;
}

TEST(DictionaryFile, LineNumberIsTheKey) {
  const std::tuple<std::string, std::size_t, DictionaryFault> cases[] = {
      {numbered(300, "w"), 300, DictionaryFault::None},
      {"\xEF\xBB\xBF" + numbered(271, "w"), 271, DictionaryFault::None},
      {numbered(270, "w"), 270, DictionaryFault::Short},
      {numbered(271, "w\xFF"), 271, DictionaryFault::NoText}};
  for (const auto& [text, entries, fault] : cases) {
    const DictionaryFile file = parseDictionary(text);
    EXPECT_EQ(file.entries.size(), entries);
    EXPECT_EQ(file.fault, fault);
    EXPECT_TRUE(!file || file.entries[0] + file.entries[270] == "w 0w 270");
  }
  EXPECT_EQ(parseDictionary("a\r\nb\r\n").entries, (std::vector<std::string>{"a", "b"}));
}

constexpr std::size_t kEventKeys[] = {59, 60, 61, 62, 63, 64, 65, 113, 114, 115, 116, 117, 118, 119};
constexpr std::size_t kNameKeys[] = {30, 121, 122, 124, 145, 147, 155};
constexpr std::size_t kColumnKeys[] = {55,  56,  57,  58,  82,  83,  129, 130, 131, 139, 140,
                                       141, 143, 149, 150, 151, 152, 153, 154, 201, 202};

std::vector<std::string> entriesOf(const std::string& language) {
  DictionaryFile file = readDictionary(ZEPHON_RESOURCES, language);
  EXPECT_TRUE(file);
  return file.entries;
}

// The places of a pattern, in any order.
std::multiset<char> placesOf(const std::string& text) {
  std::multiset<char> places;
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] == '%' && text[i + 1] >= '1' && text[i + 1] <= '9') places.insert(text[i + 1]);
  }
  return places;
}

// What is wrong with a line beside its English.
std::string faultOf(const std::string& text, const std::string& english) {
  const auto blank = [](char c) { return c == ' '; };
  if (text.empty()) return "is empty";
  if (blank(text.front()) != blank(english.front())) return "has lost or gained a leading blank";
  if (blank(text.back()) != blank(english.back())) return "has lost or gained a trailing blank";
  if (placesOf(text) != placesOf(english)) return "has not the places of \"" + english + '"';
  if (fromWindows1252(toWindows1252(text)) != text) return "has a letter that saved files can't hold";
  return {};
}

TEST(LanguageFiles, EveryLineStandsBesideTheEnglishOne) {
  const std::vector<std::string> english = entriesOf("EN");
  const std::vector<std::string> languages = languagesIn(ZEPHON_RESOURCES);
  EXPECT_EQ(languages, (std::vector<std::string>{"DE", "EN", "ES", "FR"}));
  std::set<std::string> names;
  for (const std::string& language : languages) {
    const std::vector<std::string> entries = entriesOf(language);
    EXPECT_EQ(entries.size(), english.size()) << language << ": line " << entries.size() << " is the last";
    for (std::size_t key = 0; key < std::min(entries.size(), english.size()); ++key) {
      const std::string fault = faultOf(entries[key], english[key]);
      EXPECT_EQ(fault, "") << language << ".dictionary, key " << key << ": " << entries[key];
    }
    names.insert(entries.front());
  }
  EXPECT_EQ(names.size(), languages.size()) << "key 0 is the language's own name";
}

TEST(LanguageFiles, WhatIsReadBackOrNamesAFileCanBe) {
  for (const std::string& language : languagesIn(ZEPHON_RESOURCES)) {
    const std::vector<std::string> entries = entriesOf(language);
    std::set<std::string> events;
    for (const std::size_t key : kEventKeys) events.insert(entries.at(key));
    EXPECT_EQ(events.size(), std::size(kEventKeys)) << language << ": two events share a text";
    const auto expectNone = [&](std::span<const std::size_t> keys, const char* characters) {
      for (const std::size_t key : keys)
        EXPECT_EQ(entries.at(key).find_first_of(characters), std::string::npos) << language << " " << key;
    };
    expectNone(kEventKeys, ",");
    expectNone(kColumnKeys, ",");
    expectNone(kNameKeys, "\\/:*?\"<>|");
  }
}

TEST(Words, StandInTheEnglishFileUnderTheirKeysWithoutAGap) {
  const std::vector<std::string> english = entriesOf("EN");
  std::set<std::size_t> own;
  for (const Word& word : allWords()) {
    ASSERT_LT(word.key, english.size()) << word.english;
    EXPECT_EQ(english[word.key], word.english) << "key " << word.key;
    if (word.key < kLeastEntries) continue;
    EXPECT_TRUE(own.insert(word.key).second) << "key " << word.key << " is given twice";
  }
  EXPECT_EQ(kLeastEntries + own.size(), english.size());
}

TEST(Words, AShortFileLeavesTheEnglish) {
  std::vector<std::string> dict(kLeastEntries, "x");
  EXPECT_EQ(wordText(dict, words::kMeasure) + wordText(dict, words::kHelp), "Measurex");
  dict.emplace_back();
  EXPECT_EQ(wordText(dict, words::kMeasure), "Measure") << "an empty line is none";
  EXPECT_EQ(filledText("%2 of %1, %3 100%", {"%2", "b"}), "b of %2, %3 100%");
}

TEST(Languages, AChoiceShowsAtOnceAndIsKeptAndABrokenOneLeavesTheOldOne) {
  TempFolder folder;
  std::filesystem::copy(ZEPHON_RESOURCES "/EN.dictionary", folder / "EN.dictionary");
  folder.put("DE.dictionary", numbered(271, "Wort"));
  folder.put("XX.dictionary", "short\n");
  testing_support::Tool tool;
  tool.main.around.folders.program = folder / "";
  ASSERT_EQ(loadDictionary(tool.main), "");
  tool.press(tool.main.frame.comBtn);
  Combo& list = tool.main.com.langCombo;
  EXPECT_EQ(list.items(), (std::vector<std::string>{"DE", "EN", "XX"}));
  EXPECT_EQ(list.text(), "EN");
  tool.main.frame.saveBtn.setTexts("Raw");
  list.choose(0);
  EXPECT_EQ(tool.main.frame.saveBtn.tooltip(), "Wort 189 Raw");
  EXPECT_EQ(tool.main.measurement.Ilbl.tooltip(), "Wort 140 RMS Wort 143");
  EXPECT_EQ(tool.main.findings.findingTexts[55], "Wort 270");
  EXPECT_NE(tool.settings.get("config.txt").find("DE\t;Language"), std::string::npos);
  list.choose(2);
  EXPECT_EQ(list.text() + tool.main.config.language, "DEDE");
  EXPECT_EQ(tool.main.setup.updateLimsBtn.caption(), "Wort 32");
  ASSERT_EQ(tool.dialogs.shown().size(), 1U);
  EXPECT_NE(tool.dialogs.shown()[0].detail.find("1 lines where 271"), std::string::npos);
}

}  // namespace
}  // namespace zephon
