#pragma once

#include <cstdint>
#include <string_view>

#include "form/counters.h"

namespace zephon {

// The second line's event table is a ring of 60 rows. Once it has been overrun, its oldest row is the one
// behind the device's place for the next; this brings the rows into their order in time. `position` is that
// place in bytes, four a row, as two hex digits. The dates stay where they are: they belong to the places.
//
// Nothing moves while `total`, the sum of the four counters, is below 61. False for a place outside the ring.
bool rotatePDevents(PdEvents& events, std::int64_t total, std::string_view position);

}  // namespace zephon
