#include "protocol/event_codes.h"

#include <gtest/gtest.h>

#include <vector>

#include "protocol/month_names.h"

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
  const std::pair<double, const char*> rows[] = {{1, "k64"},  {8, "k61"},    {32, "k59"},
                                                 {64, "k65"}, {129, "k113"}, {192, "k119"}};
  for (const auto& [code, text] : rows) {
    EXPECT_EQ(pqString(code, dict), text);
    EXPECT_EQ(pqNumber(text, dict), code);
  }
  for (const double code : {0.0, 3.0, 128.0, 1.5, 257.0, -1.0}) EXPECT_EQ(pqString(code, dict), "") << code;
  for (const char* text : {"", "K64", "k64 ", "k66"}) EXPECT_EQ(pqNumber(text, dict), 0) << text;
  EXPECT_EQ(monthString(12, dict), "k112");
  for (const double month : {0.0, 13.0, 1.5}) EXPECT_EQ(monthString(month, dict), "") << month;
  const auto shorter = numberedDict(64);
  EXPECT_EQ(pqString(1, shorter) + pqString(2, shorter) + monthString(1, shorter), "k63");
  EXPECT_EQ(pqNumber("", shorter), 0);
}

}  // namespace
}  // namespace zephon
