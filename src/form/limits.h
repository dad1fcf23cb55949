#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace zephon {

// The voltage points that the device acts on, in volts at the line's real scale, from the lowest to the
// highest.
struct Limits {
  std::int16_t UVco = 0;  // under voltage shutdown
  std::int16_t UVre = 0;  // under voltage record
  std::int16_t UVrs = 0;  // under voltage restore
  std::int16_t OVrs = 0;  // over voltage restore
  std::int16_t OVre = 0;  // over voltage record
  std::int16_t OVco = 0;  // over voltage shutdown
  bool operator==(const Limits&) const = default;
};

// The second line's 256 bytes of controller memory, each as two upper-case hexadecimal digits.
using PicImage = std::array<std::string, 256>;

}  // namespace zephon
