#include "text/number.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zephon {
namespace {

TEST(Number, roundsTiesToEvenWithinTheWidth) {
  const std::pair<double, std::optional<std::int16_t>> rows[] = {
      {2.5, 2}, {3.5, 4}, {-0.5, 0}, {32767.4, 32767}, {32767.5, {}}, {-32768.5, -32768}, {-32769, {}}};
  for (const auto& [value, number] : rows) EXPECT_EQ(toInt16(value), number) << value;
  EXPECT_EQ(toInt32(2147483647.4), 2147483647);
  for (const double none : {2147483648.0, std::nan(""), -std::numeric_limits<double>::infinity()})
    EXPECT_EQ(toInt32(none), std::nullopt);
}

TEST(Number, readsTheNumberAtTheStart) {
  const std::pair<const char*, double> rows[] = {
      {"12V", 12},  {"1.5e2x", 150}, {"  -3.25 ", -3.25}, {"+7", 7},   {".5", 0.5},
      {"5.", 5},    {"1e", 1},       {"1E+", 1},          {"", 0},     {"-", 0},
      {".", 0},     {"inf", 0},      {"nan", 0},          {"0x1F", 0}, {"1,5", 1},
      {"1e999", 0}, {"+-2", 0},      {"\xFF\xFF", 0}};
  for (const auto& [text, number] : rows) EXPECT_EQ(numberAtStart(text), number) << text;
}

TEST(Number, refusesWhatIsNotWhollyANumber) {
  EXPECT_EQ(wholeNumber(" -42\r"), -42);
  EXPECT_EQ(wholeNumber("999999999"), 999999999);
  for (const char* text : {"", " ", "-", "1.0", "12a", "1000000000", "1 2", "0x1"}) {
    EXPECT_EQ(wholeNumber(text), std::nullopt) << text;
  }
  EXPECT_EQ(plainNumber(" 1.5\t"), 1.5);
  for (const char* text : {"", "1.5 V", "1.5.2", "e5", "1e999", "nan"})
    EXPECT_EQ(plainNumber(text), std::nullopt) << text;
}

TEST(Number, padsWithZerosBehindTheSign) {
  EXPECT_EQ(padded(7, 2), "07");
  EXPECT_EQ(padded(-7, 2), "-07");
  EXPECT_EQ(padded(12345, 4), "12345");
}

}  // namespace
}  // namespace zephon
