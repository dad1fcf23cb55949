#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <optional>

namespace zephon {

// Numbers with a fixed count of decimals the quick way, for logs of thousands of rows: as a whole count of
// ticks, a tick being one in the last decimal. To the bit and to the letter what text/picture.h gives.

inline constexpr std::array<std::int64_t, 10> kPowersOfTen = {
    1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000, 1000000000};

// What ticksOf does with a number that lies close to the middle between two ticks.
std::int64_t ticksNearMiddle(double magnitude, int decimals);

// The ticks of 10^-decimals (0 to 9) in a number, rounded as roundDecimals rounds. Nothing from 2^40 ticks
// on, and for infinities and not-a-number.
inline std::optional<std::int64_t> ticksOf(double value, int decimals) {
  const double magnitude = std::abs(value);
  const double scaled = magnitude * static_cast<double>(kPowersOfTen[static_cast<std::size_t>(decimals)]);
  if (!(scaled < 0x1p40)) return {};
  auto ticks = static_cast<std::int64_t>(scaled + 0.5);
  // The product, and the shortest decimal form that the rounding goes by, are off by less than 2^-11.
  const double off = std::abs(scaled - static_cast<double>(ticks));
  if (off > 0.5 - 0x1p-10) ticks = ticksNearMiddle(magnitude, decimals);
  return value < 0 ? -ticks : ticks;
}

// The number of a count of ticks below 2^53. One division of two whole numbers: the nearest that there is.
inline double fromTicks(std::int64_t ticks, int decimals) {
  return static_cast<double>(ticks) / static_cast<double>(kPowersOfTen[static_cast<std::size_t>(decimals)]);
}

// roundDecimals(value, decimals).
double roundQuickly(double value, int decimals);

// What writeTicks and writeShortest put down at the most.
inline constexpr std::size_t kTicksRoom = 32;

// Ticks as text: a sign, at least `minWhole` digits, and the decimals behind a point, if there are any.
// formatPicture(fromTicks(-2543, 2), "00.00") is "-25.43". Returns where the text ends.
char* writeTicks(char* to, std::int64_t ticks, int decimals, int minWhole = 1);

// shortestText of a number of at most four decimals, below 10^8; nothing written and null for any other.
char* writeShortest(char* to, double value);

}  // namespace zephon
