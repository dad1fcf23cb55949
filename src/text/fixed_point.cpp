#include "text/fixed_point.h"

#include <charconv>
#include <utility>

#include "text/picture.h"

namespace zephon {
namespace {

// The division is by a number that the compiler knows.
template <int kDecimals>
char* writeMagnitude(char* to, std::uint64_t ticks, int minWhole) {
  constexpr auto kPower = static_cast<std::uint64_t>(kPowersOfTen[kDecimals]);
  const std::uint64_t whole = ticks / kPower;
  for (int digits = minWhole; digits > 1; --digits)
    if (whole < static_cast<std::uint64_t>(kPowersOfTen[static_cast<std::size_t>(digits - 1)])) *to++ = '0';
  to = std::to_chars(to, to + kTicksRoom, whole).ptr;
  if constexpr (kDecimals == 0) return to;
  *to = '.';
  std::uint64_t fraction = ticks % kPower;
  for (int place = kDecimals; place > 0; --place, fraction /= 10)
    to[place] = static_cast<char>('0' + fraction % 10);
  return to + kDecimals + 1;
}

using Writer = char* (*)(char*, std::uint64_t, int);

template <int... kDecimals>
constexpr std::array<Writer, sizeof...(kDecimals)> writers(std::integer_sequence<int, kDecimals...> /*all*/) {
  return {writeMagnitude<kDecimals>...};
}
constexpr auto kWriters = writers(std::make_integer_sequence<int, kPowersOfTen.size()>{});

}  // namespace

// An exact half has at most 14 digits, so no shorter decimal form is the same number, and it goes up. Any
// other number this close to the middle is rounded the slow way.
std::int64_t ticksNearMiddle(double magnitude, int decimals) {
  const auto power = static_cast<double>(kPowersOfTen[static_cast<std::size_t>(decimals)]);
  const double scaled = magnitude * power;
  const bool exact = std::fma(magnitude, power, -scaled) == 0;
  if (exact && scaled - std::floor(scaled) == 0.5) return static_cast<std::int64_t>(scaled) + 1;
  return std::llround(roundDecimals(magnitude, decimals) * power);
}

double roundQuickly(double value, int decimals) {
  const std::optional<std::int64_t> ticks = ticksOf(value, decimals);
  return ticks ? fromTicks(*ticks, decimals) : roundDecimals(value, decimals);
}

char* writeTicks(char* to, std::int64_t ticks, int decimals, int minWhole) {
  if (ticks < 0) {
    *to++ = '-';
    ticks = -ticks;
  }
  return kWriters[static_cast<std::size_t>(decimals)](to, static_cast<std::uint64_t>(ticks), minWhole);
}

char* writeShortest(char* to, double value) {
  if (!(std::abs(value) < 1e8)) return nullptr;
  const std::optional<std::int64_t> found = ticksOf(value, 4);
  if (!found || fromTicks(*found, 4) != value) return nullptr;
  std::int64_t ticks = *found;
  int decimals = 4;
  for (; decimals > 0 && ticks % 10 == 0; --decimals) ticks /= 10;
  return writeTicks(to, ticks, decimals);
}

}  // namespace zephon
