#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace zephon::simulator {

// A share of full scale, 0 up to just under 1, as an unsigned fraction, most significant byte first. A share
// outside is held at the nearest end.
std::string unsignedFraction(double share, int bytes);

// A share of full scale between -0.5 and 0.5, most significant byte first. A negative share is the ones'
// complement of its magnitude: -0.25 is the complement of 0x40.
std::string signedFraction(double share, int bytes = 1);

// The same between -0.5 and just under 0.5 in two's complement; a share outside is held at the nearest end.
std::string twosComplement(double share, int bytes);

// An unsigned number with eight bits before the point and twenty-four after it, most significant byte first.
std::string fixedPoint8_24(double value);

// A count in two bytes, high byte first, held at 65535.
std::string bigEndian16(std::uint32_t count);
// An address in three bytes, high byte first.
std::string bigEndian24(std::uint32_t address);

// A value rounded, held within its range and told in two bytes, low byte first; a negative one, where it is
// possible, in two's complement.
std::string littleEndian16(double value);
std::string signedLittleEndian16(double value);
// The same in one byte, without sign.
char wholeByte(double value);

// 0 to 99 as two decimal digits in one byte; greater numbers are held at 99.
std::uint8_t toBcd(std::int64_t number);
// Nothing for a byte that holds a digit above nine.
std::optional<int> fromBcd(std::uint8_t byte);

// A byte of memory that nothing has been written to.
inline constexpr char kErased = '\xFF';

inline char asChar(int byte) {
  return static_cast<char>(static_cast<std::uint8_t>(byte));
}
inline std::uint8_t asByte(char character) {
  return static_cast<std::uint8_t>(character);
}

}  // namespace zephon::simulator
