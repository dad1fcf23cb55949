#pragma once

#include <bit>
#include <cstdint>
#include <string>
#include <string_view>

namespace zephon {

// The device's number encodings: bytes, hex digits and bit characters into numbers. Bytes come as text of
// 8-bit characters, in the order in which they arrived.

// What a fraction query gives for a failed exchange. Compared for exact equality; no quantity reaches it.
inline constexpr float noFraction = 31415926784.0f;
static_assert(std::bit_cast<std::uint32_t>(noFraction) == 0x50EA1120);

// Two upper-case hex digits a character.
std::string ascii2hex(std::string_view text);

// One character for each pair of hex digits; a last single digit gives a character by itself. A pair is read
// up to its first character that is no hex digit.
std::string hex2ascii(std::string_view hex);

// "0" to "F" to four bit characters, a blank to a blank; anything else, lower case included, to nothing.
std::string_view hex2bin(char digit);

// 8, 16 or 24 bits: a fraction of full scale in [0, 1), first bit worth one half. 32 bits: eight whole bits
// before the 24 of the fraction. The sum is rounded to single precision after each addition, fraction first,
// so the fraction's low bits survive only under a small whole part. 0 for any other count of bits.
float binFraction(std::string_view bits);

// Each "0" to "1" and each "1" to "0", with nothing added afterwards.
std::string complement(std::string_view bits);

// "A" to "F" in either case are 10 to 15; anything else is read as a decimal number, 0 when it is none or
// does not fit 16 bits.
std::int16_t HexToDec(std::string_view digit);

// "00", "01", "10", "11" to "00", "01", "02", "03"; anything else to nothing.
std::string_view BinaryToDecimal(std::string_view bits);

// Bit characters of a number from 0 up, at least four.
std::string DecimalToBinary(int number);

// A raw reply of 1 to 4 bytes as binFraction of its bits. Signed, a reply whose first bit is set is minus
// binFraction of the complement: all ones are -0.0, and 0x80 0x00 is -0.4999847412109375.
double unscaledFraction(std::string_view raw, bool isSigned);

// One byte is its value, two are a number with the high byte first. Of a longer reply all bytes are added up,
// the second-last weighed by 256.
std::int32_t decodeDecimal(std::string_view bytes);

// A byte's two hex digits taken as a decimal number, up to the first that is none: 0x59 is 59, 0x1A is 1,
// 0xFF 0.
constexpr int bcdByte(std::uint8_t byte) {
  const int high = byte >> 4;
  const int low = byte & 0x0F;
  if (high > 9) return 0;
  return low > 9 ? high : high * 10 + low;
}

}  // namespace zephon
