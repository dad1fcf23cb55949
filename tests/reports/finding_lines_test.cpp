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
  // The lengths of the lines, without the four or six characters before the text.
  const std::pair<std::size_t, std::vector<std::size_t>> cases[] = {
      {130, {130}}, {131, {129, 1}}, {260, {129, 130}}, {261, {129, 129, 1}}, {400, {129, 129, 140}}};
  for (const auto& [length, lengths] : cases) {
    std::vector<std::size_t> found;
    std::string joined;
    for (const std::string& line : findingLines(7, words(length))) {
      const std::string before = joined.empty() ? "07. " : "      ";
      EXPECT_TRUE(line.starts_with(before)) << line;
      found.push_back(line.size() - before.size());
      joined += (joined.empty() ? "" : " ") + line.substr(before.size());
    }
    EXPECT_EQ(found, lengths);
    EXPECT_EQ(joined, words(length));
  }
  // Letters of two bytes count once; a text without a blank is cut where the line ends.
  std::string umlauts;
  for (int i = 0; i < 131; ++i) umlauts += "\u00E4";
  EXPECT_EQ(findingLines(1, umlauts.substr(2)).size(), 1u);
  EXPECT_EQ(findingLines(1, umlauts).back(), "      \u00E4");
}

TEST(FindingLines, PagesFollowTheLengthsAndFinishTheFindingTheyBegan) {
  // How many findings of a length, and the lines on each page.
  const std::tuple<std::size_t, std::size_t, std::vector<std::size_t>> cases[] = {
      {60, 100, {60}},
      {61, 100, {60, 1}},
      {56, 300, {60, 60, 48}},
      {31, 130, {31, 0}}};  // texts of exactly 130 characters take one line and are counted as two
  for (const auto& [count, length, expected] : cases) {
    std::vector<std::size_t> lines;
    for (const auto& page : findingPages(std::vector(count, words(length)))) lines.push_back(page.size());
    EXPECT_EQ(lines, expected) << count << " of " << length;
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
