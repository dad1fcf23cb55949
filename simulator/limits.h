#pragma once

#include <array>
#include <cstdint>

namespace zephon::simulator {

// The voltages on which a conditioner acts, in volts of its own line, from the lowest to the highest.
struct Limits {
  double uvco = 0;  // below: outlets off
  double uvre = 0;  // below: an under voltage is recorded
  double uvrs = 0;  // from here up the outlets come back
  double ovrs = 0;  // from here down the outlets come back
  double ovre = 0;  // above: an over voltage is recorded
  double ovco = 0;  // above: outlets off
};

// The seven limit registers of a first-line device: six volts on the 120 V basis whatever the rating, and the
// amps above which an overload is recorded.
struct LimitRegisters {
  std::uint8_t uvco = 80, uvre = 100, uvrs = 105, ovrs = 140, ovre = 145, ovco = 150;
  std::uint8_t overload = 25;
};

LimitRegisters factoryRegisters(int rating);
Limits limitsOf(const LimitRegisters& registers, int rating);

// The two limit bytes of a second-line device's memory. Each half byte is one-hot and picks a point from a
// short list; the two restore points follow.
//   byte 254: left OVre, right UVre      byte 255: left OVco, right UVco
struct LimitBytes {
  std::uint8_t record = 0x00;    // 254
  std::uint8_t shutdown = 0x00;  // 255
};

LimitBytes factoryBytes(int rating);
Limits limitsOf(LimitBytes bytes, int rating);

}  // namespace zephon::simulator
