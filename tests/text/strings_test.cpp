#include "text/strings.h"

#include <gtest/gtest.h>

namespace zephon {
namespace {

TEST(Strings, splitsIntoEveryPart) {
  EXPECT_EQ(split("a,,b,", ','), (std::vector<std::string>{"a", "", "b", ""}));
  EXPECT_EQ(split("", ','), (std::vector<std::string>{""}));
}

TEST(Strings, comparesWithoutCase) {
  EXPECT_TRUE(equalIgnoringCase("CsV", "csv"));
  EXPECT_FALSE(equalIgnoringCase("csv", "csvx"));
  EXPECT_FALSE(equalIgnoringCase("[", "{"));
  EXPECT_EQ(findIgnoringCase("xxon/OFF", "off"), 5u);
  EXPECT_EQ(findIgnoringCase("of", "off"), std::string_view::npos);
}

TEST(Strings, cutsWithinShortTexts) {
  EXPECT_EQ(trimmed(" \t a b\r\n"), "a b");
  EXPECT_EQ(lastOf("abc", 5), "abc");
  EXPECT_EQ(partOf("abc", 1, 5), "bc");
  EXPECT_EQ(partOf("abc", 9, 1), "");
}

}  // namespace
}  // namespace zephon
