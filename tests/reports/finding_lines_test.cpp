#include "reports/finding_lines.h"

#include <gtest/gtest.h>

namespace zephon {
namespace {

// Words of nine characters and a blank each: a text of `length` that ends in what is left of the last word.
std::string words(std::size_t length) {
  std::string text;
  while (text.size() < length) text += "ninechars ";
  text.resize(length);
  if (text.ends_with(' ')) text.back() = '.';
  return text;
}

TEST(FindingLines, LongTextsAreCutAtABlankThatBelongsToNeitherSide) {
  const struct {
    std::size_t length;
    std::vector<std::size_t> lines;  // lengths, without the four or six characters before the text
  } cases[] = {{1, {1}},          {129, {129}},         {130, {130}},          {131, {129, 1}},
               {260, {129, 130}}, {261, {129, 129, 1}}, {400, {129, 129, 140}}};
  for (const auto& one : cases) {
    const auto lines = findingLines(7, words(one.length));
    ASSERT_EQ(lines.size(), one.lines.size()) << one.length;
    std::string joined;
    for (std::size_t i = 0; i < lines.size(); ++i) {
      const std::string before = i == 0 ? "07. " : "      ";
      EXPECT_TRUE(lines[i].starts_with(before)) << lines[i];
      const std::string text = lines[i].substr(before.size());
      EXPECT_EQ(text.size(), one.lines[i]) << one.length;
      joined += (i == 0 ? "" : " ") + text;
    }
    EXPECT_EQ(joined, words(one.length));
  }
  // Letters of two bytes count once; a text without a blank is cut where the line ends.
  std::string umlauts;
  for (int i = 0; i < 131; ++i) umlauts += "\u00E4";
  EXPECT_EQ(findingLines(1, umlauts.substr(2)).size(), 1u);
  EXPECT_EQ(findingLines(1, umlauts).back(), "      \u00E4");
}

TEST(FindingLines, PagesFollowTheLengthsAndFinishTheFindingTheyBegan) {
  const struct {
    std::vector<std::size_t> lengths;
    std::vector<std::size_t> lines;  // on each page
  } cases[] = {
      {std::vector<std::size_t>(60, 100), {60}},
      {std::vector<std::size_t>(61, 100), {60, 1}},
      {std::vector<std::size_t>(56, 300), {60, 60, 48}},
      {std::vector<std::size_t>(31, 129), {31}},
      // Texts of exactly 130 characters take one line and are counted as two.
      {std::vector<std::size_t>(31, 130), {31, 0}},
  };
  for (const auto& one : cases) {
    std::vector<std::string> findings;
    for (const std::size_t length : one.lengths) findings.push_back(words(length));
    const auto pages = findingPages(findings);
    std::vector<std::size_t> lines;
    for (const auto& page : pages) lines.push_back(page.size());
    EXPECT_EQ(lines, one.lines) << one.lengths.size() << " of " << one.lengths[0];
  }
  std::vector<std::string> late(59, "short");
  late.push_back(words(300));
  late.push_back("last");
  const auto pages = findingPages(late);
  ASSERT_EQ(pages.size(), 2u);
  EXPECT_EQ(pages[0].size(), 62u);
  EXPECT_EQ(pages[1], std::vector<std::string>{"61. last"});
  const auto none = findingPages({});
  ASSERT_EQ(none.size(), 1u);
  EXPECT_TRUE(none[0].at(0).starts_with("01. Analysis of the acquired data shows no indication of improper"));
}

}  // namespace
}  // namespace zephon
