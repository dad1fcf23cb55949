#pragma once

#include <cstdint>
#include <optional>

#include "form/limits.h"
#include "protocol/limit_editors.h"

namespace zephon {

// The second line keeps four of its limits in the last two bytes of its memory, each as a hex digit of which
// one bit is set, or none:
//   byte 254: left OVre, right UVre      byte 255: left OVco, right UVco
// The digit picks a voltage from a short list. The two restore points are not stored; they follow.

// The voltage of the editor's list that is nearest to another one; the same for an editor without a list.
double nearestListed(std::size_t which, std::int16_t nominalVolts, double volts);

// All six limits from the two bytes.
Limits limitsOfBytes(std::uint8_t byte254, std::uint8_t byte255, std::int16_t nominalVolts);

// What goes over the wire for the editors' values: each image byte and 48 more. A value that is in no list
// has no digit; a pair that lacks one is the other's digit alone, which makes another byte of it.
struct LimitWireBytes {
  char cutoffs;  // behind "a": OVco and UVco
  char records;  // behind "b": OVre and UVre
};
// Nothing when a byte has no digit at all.
std::optional<LimitWireBytes> limitWireBytes(const LimitValues& volts);

}  // namespace zephon
