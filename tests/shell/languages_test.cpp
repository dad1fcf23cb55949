// The language files as they are shipped, line by line beside the English ones.

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "files/dictionary_file.h"
#include "form/words.h"
#include "text/windows1252.h"

namespace zephon {
namespace {

constexpr std::size_t kEventKeys[] = {59, 60, 61, 62, 63, 64, 65, 113, 114, 115, 116, 117, 118, 119};
constexpr std::size_t kNameKeys[] = {30, 121, 122, 124, 145, 147, 155};
constexpr std::size_t kColumnKeys[] = {55,  56,  57,  58,  82,  83,  129, 130, 131, 139, 140,
                                       141, 143, 149, 150, 151, 152, 153, 154, 201, 202};

std::vector<std::string> entriesOf(const std::string& language) {
  DictionaryFile file = readDictionary(ZEPHON_RESOURCES, language);
  EXPECT_EQ(file.fault, "");
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

// What is wrong with a line beside its English; empty for nothing.
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
    for (const std::size_t key : kEventKeys) {
      events.insert(entries.at(key));
      EXPECT_EQ(entries.at(key).find(','), std::string::npos) << language << " " << key;
    }
    EXPECT_EQ(events.size(), std::size(kEventKeys)) << language << ": two events share a text";
    for (const std::size_t key : kColumnKeys)
      EXPECT_EQ(entries.at(key).find(','), std::string::npos) << language << " " << key;
    for (const std::size_t key : kNameKeys)
      EXPECT_EQ(entries.at(key).find_first_of("\\/:*?\"<>|"), std::string::npos) << language << " " << key;
    EXPECT_EQ(std::set<std::string>(entries.begin() + 26, entries.begin() + 30).size(), 4U) << language;
    for (std::size_t key = 215; key <= 270; ++key)
      EXPECT_LE(toWindows1252(entries.at(key)).size(), 255U) << language << " " << key;
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
  EXPECT_EQ(*own.rbegin() + 1, english.size());
}

TEST(Words, AShortFileLeavesTheEnglish) {
  std::vector<std::string> dict(kLeastEntries, "x");
  EXPECT_EQ(wordText(dict, words::kMeasure), "Measure");
  EXPECT_EQ(wordText(dict, words::kHelp), "x");
  dict.emplace_back();
  EXPECT_EQ(wordText(dict, words::kMeasure), "Measure") << "an empty line is none";
  EXPECT_EQ(filledText("%2 of %1, %3 100%", {"%2", "b"}), "b of %2, %3 100%");
}

}  // namespace
}  // namespace zephon
