#pragma once

#include <cstdint>

namespace zephon::simulator {

// Random numbers that are a function of their place, so that any moment of a site can be asked for in any
// order. `stream` tells the uses of one seed apart.

// Evenly spread from 0 up to, not including, 1.
double chance(std::uint64_t seed, int stream, std::int64_t index);

// A smooth wander between -1 and 1 that takes a new direction every `period` seconds.
double wander(std::uint64_t seed, int stream, double seconds, double period);

}  // namespace zephon::simulator
