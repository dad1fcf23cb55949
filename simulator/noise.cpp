#include "simulator/noise.h"

#include <cmath>

namespace zephon::simulator {
namespace {

// The finishing steps of the SplitMix64 generator.
std::uint64_t mix(std::uint64_t x) {
  x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9u;
  x = (x ^ (x >> 27)) * 0x94D049BB133111EBu;
  return x ^ (x >> 31);
}

}  // namespace

double chance(std::uint64_t seed, int stream, std::int64_t index) {
  const std::uint64_t place = mix(seed * 0x9E3779B97F4A7C15u + static_cast<std::uint64_t>(stream));
  const std::uint64_t bits = mix(place + static_cast<std::uint64_t>(index) * 0x9E3779B97F4A7C15u);
  return std::ldexp(static_cast<double>(bits >> 11), -53);
}

double wander(std::uint64_t seed, int stream, double seconds, double period) {
  const double place = seconds / period;
  const double before = std::floor(place);
  const double along = place - before;
  const double weight = along * along * (3.0 - 2.0 * along);
  const auto index = static_cast<std::int64_t>(before);
  const double from = chance(seed, stream, index);
  const double to = chance(seed, stream, index + 1);
  return 2.0 * (from + (to - from) * weight) - 1.0;
}

}  // namespace zephon::simulator
