#pragma once

#include <cstdint>

namespace zephon {

// A colour as the platform's value: red in the low byte, then green, then blue (0x00BBGGRR).
using Colour = std::uint32_t;

constexpr Colour rgb(unsigned red, unsigned green, unsigned blue) {
  return red | green << 8U | blue << 16U;
}

inline constexpr Colour kGreen = 65280;
inline constexpr Colour kYellow = 65535;
inline constexpr Colour kRed = 255;
inline constexpr Colour kBlack = 0;
inline constexpr Colour kUnjudged = 0x808080;  // a reading for which there are no bounds
inline constexpr Colour kWhite = 0xFFFFFF;

// A meter's fill: on, it is polled; off, it is skipped.
inline constexpr Colour kMeterOn = 8613229;    // 0x836D6D
inline constexpr Colour kMeterOff = 12632256;  // 0xC0C0C0

}  // namespace zephon
