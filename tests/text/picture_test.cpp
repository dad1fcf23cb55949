#include "text/picture.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace zephon {
namespace {

TEST(Picture, writesNumbersThroughPictures) {
  const std::tuple<double, const char*, const char*> rows[] = {
      {1.5, "###0.0##", "1.5"},
      {120, "###0.0##", "120.0"},
      {12345.6789, "###0.0##", "12345.679"},
      {1.5, "###0.##0", "1.500"},
      {5, "#00.00", "05.00"},
      {5, "0#", "05"},
      {-5, "00", "-05"},
      {0.005, "0.00", "0.01"},
      {1.005, "0.00", "1.01"},
      {-0.004, "0.00", "0.00"},
      {0.0049999, "0.00", "0.00"},
      {9.995, "#0.00", "10.00"},
      {0.5, "##0", "1"},
      {0.5, "#.0", ".5"},
      {3, "0.##", "3"},
      {1e-320, "0.000", "0.000"},
      {12.5, "about 0.0 V.", "about 12.5 V."},
      {std::numeric_limits<double>::infinity(), "0.0", ""},
      {std::numeric_limits<double>::quiet_NaN(), "0.0", ""}};
  for (const auto& [value, picture, text] : rows) EXPECT_EQ(formatPicture(value, picture), text) << picture;
  EXPECT_EQ(formatPicture(1e21, "0.0"), "1000000000000000000000.0");
}

TEST(Picture, roundsToDecimals) {
  EXPECT_EQ(formatPicture(1.005f, "0.00"), "1.01");
  EXPECT_EQ(roundDecimals(2.675f, 2), 2.68f);
  EXPECT_EQ(roundDecimals(-2.5, 0), -3);
  EXPECT_EQ(roundDecimals(1e300, 9), 1e300);
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

}  // namespace
}  // namespace zephon
