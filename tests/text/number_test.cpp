#include "text/number.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "text/fixed_point.h"
#include "text/picture.h"

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
      {"12V", 12}, {"1.5e2x", 150}, {"  -3.25 ", -3.25}, {"+7", 7},  {".5", 0.5},  {"1E+", 1},
      {"", 0},     {"-", 0},        {"inf", 0},          {"1,5", 1}, {"1e999", 0}, {"\xFF\xFF", 0}};
  for (const auto& [text, number] : rows) EXPECT_EQ(numberAtStart(text), number) << text;
}

TEST(Number, refusesWhatIsNotWhollyANumberAndPadsBehindTheSign) {
  EXPECT_EQ(wholeNumber(" -42\r"), -42);
  EXPECT_EQ(wholeNumber("999999999"), 999999999);
  for (const char* text : {"", "-", "1.0", "12a", "1000000000", "1 2"})
    EXPECT_EQ(wholeNumber(text), std::nullopt) << text;
  EXPECT_EQ(plainNumber(" 1.5\t"), 1.5);
  for (const char* text : {"", "1.5 V", "1.5.2", "e5", "1e999", "nan"})
    EXPECT_EQ(plainNumber(text), std::nullopt) << text;
  EXPECT_EQ(padded(-7, 2), "-07");
}

TEST(Picture, writesNumbersThroughPictures) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  using Row = std::tuple<double, const char*, const char*>;
  const Row rows[] = {{120, "###0.0##", "120.0"}, {12345.6789, "###0.0##", "12345.679"},
                      {5, "#00.00", "05.00"},     {-5, "00", "-05"},
                      {1.005, "0.00", "1.01"},    {-0.004, "0.00", "0.00"},
                      {0.5, "##0", "1"},          {3, "0.##", "3"},
                      {kInfinity, "0.0", ""},     {12.5, "about 0.0 V.", "about 12.5 V."}};
  for (const auto& [value, picture, text] : rows) EXPECT_EQ(formatPicture(value, picture), text) << picture;
}

TEST(Picture, roundsToDecimals) {
  EXPECT_EQ(formatPicture(1.005f, "0.00"), "1.01");
  EXPECT_EQ(roundDecimals(2.675f, 2), 2.68f);
  EXPECT_EQ(roundDecimals(-2.5, 0), -3);
  EXPECT_FALSE(std::signbit(roundDecimals(-0.0001, 3)));
  EXPECT_TRUE(std::isnan(roundDecimals(std::numeric_limits<double>::quiet_NaN(), 3)));
}

TEST(Picture, shortestTextReadsBackAsTheSameNumber) {
  EXPECT_EQ(shortestText(-0.0), "0");
  EXPECT_EQ(shortestText(1e23), "100000000000000000000000");
  std::mt19937_64 random(1);
  for (int i = 0; i < 20000; ++i) {
    const double value = std::bit_cast<double>(random());
    const std::string text = shortestText(value);
    EXPECT_TRUE(std::isfinite(value) ? std::strtod(text.c_str(), nullptr) == value : text.empty()) << text;
  }
}

// What the quick way gives against the thorough one, for one number.
void compare(double value) {
  for (int decimals = 0; decimals <= 4; ++decimals) {
    const double slow = roundDecimals(value, decimals);
    ASSERT_EQ(std::bit_cast<std::uint64_t>(roundQuickly(value, decimals)), std::bit_cast<std::uint64_t>(slow))
        << shortestText(value) << ' ' << decimals;
    const auto ticks = ticksOf(value, decimals);
    if (!ticks) continue;
    const std::string picture = "00." + std::string(static_cast<std::size_t>(decimals), '0');
    char text[kTicksRoom];
    ASSERT_EQ(std::string(+text, writeTicks(text, *ticks, decimals, 2)), formatPicture(value, picture))
        << value;
    if (char* const end = writeShortest(text, slow)) {
      ASSERT_EQ(std::string(+text, end), shortestText(slow));
    } else {
      ASSERT_GE(std::abs(slow), 1e8);
    }
  }
}

TEST(FixedPoint, roundsAsThePicturesDo) {
  for (const double value : {0.0, -0.0, 1.005, 2.675, 0.5, -2.5, 0.125, 9.995, -0.0004, 0.49999999999999994,
                             1e-320, 99999999.99995, 1099511627775.5, 1099511627776.0, 1e300})
    compare(value);
  std::mt19937_64 random(1);
  for (int i = 0; i < 10000; ++i) {
    const double fraction = std::ldexp(static_cast<double>(random() >> 11), -53);
    const double size = std::pow(10.0, static_cast<double>(random() % 10));
    const double value = fraction * size * (random() % 2 == 0 ? 1 : -1);
    compare(value);
    compare(std::nearbyint(value * 8) / 8);                            // exact halves
    compare(roundDecimals(value, 3) + 0.0005);                         // halves that no double holds
    compare(std::nextafter(std::nearbyint(value * 100) / 200, size));  // beside a half
  }
}

}  // namespace
}  // namespace zephon
