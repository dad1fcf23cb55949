#include "protocol/event_codes.h"

#include <gtest/gtest.h>

#include <vector>

namespace zephon {
namespace {

// Entry N reads "kN".
std::vector<std::string> numberedDict(int entries) {
  std::vector<std::string> dict;
  for (int key = 0; key < entries; ++key) dict.push_back("k" + std::to_string(key));
  return dict;
}

TEST(EventCodes, findsTextsAndCodes) {
  const auto dict = numberedDict(271);
  const std::pair<double, const char*> rows[] = {{1, "k64"},    {2, "k63"},    {4, "k62"},    {8, "k61"},
                                                 {16, "k60"},   {32, "k59"},   {64, "k65"},   {129, "k113"},
                                                 {130, "k114"}, {132, "k115"}, {136, "k116"}, {144, "k117"},
                                                 {160, "k118"}, {192, "k119"}};
  for (const auto& [code, text] : rows) {
    EXPECT_EQ(pqString(code, dict), text);
    EXPECT_EQ(pqNumber(text, dict), code);
    EXPECT_EQ(findEventCode(code)->legend, findEventCode(code > 128 ? code - 128 : code + 128)->legend);
  }
  for (const double code : {0.0, 3.0, 128.0, 1.5, 257.0, -1.0}) EXPECT_EQ(pqString(code, dict), "") << code;
  for (const char* text : {"", "K64", "k64 ", "k66"}) EXPECT_EQ(pqNumber(text, dict), 0) << text;
  EXPECT_EQ(monthString(12, dict), "k112");
  for (const double month : {0.0, 13.0, 1.5}) EXPECT_EQ(monthString(month, dict), "") << month;
}

TEST(EventCodes, takesTheFirstOfTwoClassesWithOneText) {
  auto dict = numberedDict(271);
  dict[64] = dict[59] = "same";
  dict[65] = dict[113] = "both";
  EXPECT_EQ(pqNumber("same", dict), 1);
  EXPECT_EQ(pqNumber("both", dict), 64);
}

TEST(EventCodes, standsAShortDictionary) {
  const auto dict = numberedDict(64);
  EXPECT_EQ(pqString(1, dict), "");
  EXPECT_EQ(pqString(2, dict), "k63");
  EXPECT_EQ(pqNumber("", dict), 0);
  EXPECT_EQ(monthString(1, dict), "");
}

}  // namespace
}  // namespace zephon
