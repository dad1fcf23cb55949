#include "text/fixed_point.h"

#include <gtest/gtest.h>

#include <bit>
#include <random>

#include "text/picture.h"

namespace zephon {
namespace {

std::string written(double value, int decimals, int minWhole) {
  char text[kTicksRoom];
  return {text, writeTicks(text, ticksOf(value, decimals).value(), decimals, minWhole)};
}

// What the quick way gives against the thorough one, for one number.
void compare(double value) {
  for (int decimals = 0; decimals <= 4; ++decimals) {
    const double slow = roundDecimals(value, decimals);
    ASSERT_EQ(std::bit_cast<std::uint64_t>(roundQuickly(value, decimals)), std::bit_cast<std::uint64_t>(slow))
        << shortestText(value) << ' ' << decimals;
    if (!ticksOf(value, decimals)) continue;
    const std::string picture = "00." + std::string(static_cast<std::size_t>(decimals), '0');
    ASSERT_EQ(written(value, decimals, 2), formatPicture(value, picture)) << shortestText(value);
    char text[kTicksRoom];
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
}

TEST(FixedPoint, agreesWithThePicturesOnAnyNumber) {
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
