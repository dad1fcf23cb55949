#include "text/strings.h"

#include <gtest/gtest.h>

#include "text/windows1252.h"

namespace zephon {
namespace {

TEST(Strings, splitsIntoEveryPartAndComparesWithoutCase) {
  EXPECT_EQ(split("a,,b,", ','), (std::vector<std::string>{"a", "", "b", ""}));
  EXPECT_EQ(split("", ','), (std::vector<std::string>{""}));
  EXPECT_TRUE(equalIgnoringCase("CsV", "csv"));
  EXPECT_FALSE(equalIgnoringCase("csv", "csvx") || equalIgnoringCase("[", "{"));
  EXPECT_EQ(findIgnoringCase("xxon/OFF", "off"), 5u);
}

TEST(Windows1252, takesEveryByteThereAndBack) {
  for (int code = 0; code < 256; ++code) {
    const std::string byte(1, static_cast<char>(code));
    const std::string text = fromWindows1252(byte);
    EXPECT_TRUE(isUtf8(text)) << code;
    EXPECT_EQ(toWindows1252(text), byte) << code;
  }
}

TEST(Windows1252, knowsThePageAndMarksWhatItLacksOrWhatIsIllFormed) {
  EXPECT_EQ(toWindows1252("€ \u2019 \u0178 ÿ \u03A9 \U0001F600"), "\x80 \x92 \x9F \xFF ? ?");
  using Row = std::pair<const char*, const char*>;
  const Row rows[] = {{"\x80", "?"},           {"a\xC3", "a?"},      {"\xC0\xAF", "??"},
                      {"\xED\xA0\x80", "???"}, {"\xE2\x82z", "??z"}, {"\xF4\x90\x80\x80", "????"}};
  for (const auto& [bytes, written] : rows) {
    EXPECT_FALSE(isUtf8(bytes)) << written;
    EXPECT_EQ(toWindows1252(bytes), written);
  }
}

}  // namespace
}  // namespace zephon
