#include "text/windows1252.h"

#include <gtest/gtest.h>

namespace zephon {
namespace {

TEST(Windows1252, takesEveryByteThereAndBack) {
  for (int code = 0; code < 256; ++code) {
    const std::string byte(1, static_cast<char>(code));
    const std::string text = fromWindows1252(byte);
    EXPECT_TRUE(isUtf8(text)) << code;
    EXPECT_EQ(toWindows1252(text), byte) << code;
  }
}

TEST(Windows1252, knowsThePageAndMarksWhatItLacks) {
  EXPECT_EQ(toWindows1252("€ \u2019 \u0178 ÿ"), "\x80 \x92 \x9F \xFF");
  EXPECT_EQ(fromWindows1252("\xE9\x8A"), "é\u0160");
  EXPECT_EQ(toWindows1252("a\u03A9b\U0001F600c"), "a?b?c");
}

TEST(Windows1252, refusesIllFormedText) {
  const std::pair<const char*, const char*> rows[] = {{"\x80", "?"},           {"a\xC3", "a?"},
                                                      {"\xC0\xAF", "??"},      {"\xE0\x80\xAF", "???"},
                                                      {"\xED\xA0\x80", "???"}, {"\xF4\x90\x80\x80", "????"},
                                                      {"\xE2\x82z", "??z"},    {"\xFFx", "?x"}};
  for (const auto& [bytes, written] : rows) {
    EXPECT_FALSE(isUtf8(bytes)) << written;
    EXPECT_EQ(toWindows1252(bytes), written);
  }
}

}  // namespace
}  // namespace zephon
