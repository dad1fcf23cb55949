#include "protocol/encodings.h"

#include <algorithm>
#include <array>

#include "text/number.h"

namespace zephon {
namespace {

constexpr std::string_view kHexDigits = "0123456789ABCDEF";

constexpr std::array<std::string_view, 16> kNibbles = {"0000", "0001", "0010", "0011", "0100", "0101",
                                                       "0110", "0111", "1000", "1001", "1010", "1011",
                                                       "1100", "1101", "1110", "1111"};

std::uint8_t codeOf(char c) {
  return static_cast<std::uint8_t>(c);
}

// The value of a hex digit in either case, -1 for anything else.
int hexValue(char c) {
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  const std::size_t place = kHexDigits.find(c);
  return place == std::string_view::npos ? -1 : static_cast<int>(place);
}

int hexNumber(std::string_view digits) {
  int number = 0;
  for (const char c : digits) {
    if (hexValue(c) < 0) break;
    number = number * 16 + hexValue(c);
  }
  return number;
}

// Adds the weights of the set bits to a running sum, the first bit weighing `weight` and each next one half.
float addBits(float sum, std::string_view bits, float weight) {
  for (const char bit : bits) {
    if (bit == '1') sum += weight;
    weight /= 2;
  }
  return sum;
}

// What binFraction gives for the bits of a big-endian number of `bytes` bytes, 1 to 4. The 24 fraction bits
// fit a float, so their sum is exact in one step; the whole bits are added one by one, as binFraction adds them.
float fractionOf(std::uint32_t number, std::size_t bytes) {
  if (bytes < 4) return static_cast<float>(number << 8 * (3 - bytes)) * 0x1p-24f;
  float sum = static_cast<float>(number & 0xFFFFFF) * 0x1p-24f;
  for (std::uint32_t bit = 0x80; bit != 0; bit >>= 1) {
    if ((number >> 24 & bit) != 0) sum += static_cast<float>(bit);
  }
  return sum;
}

}  // namespace

std::string ascii2hex(std::string_view text) {
  std::string hex;
  hex.reserve(text.size() * 2);
  for (const char c : text) {
    hex += kHexDigits[codeOf(c) >> 4];
    hex += kHexDigits[codeOf(c) & 0x0F];
  }
  return hex;
}

std::string hex2ascii(std::string_view hex) {
  std::string text;
  for (std::size_t i = 0; i < hex.size(); i += 2) text += static_cast<char>(hexNumber(hex.substr(i, 2)));
  return text;
}

std::string_view hex2bin(char digit) {
  if (digit == ' ') return " ";
  const std::size_t value = kHexDigits.find(digit);
  return value == std::string_view::npos ? std::string_view{} : kNibbles[value];
}

float binFraction(std::string_view bits) {
  if (bits.size() == 32) return addBits(addBits(0, bits.substr(8), 0.5f), bits.substr(0, 8), 128);
  const bool known = bits.size() == 8 || bits.size() == 16 || bits.size() == 24;
  return known ? addBits(0, bits, 0.5f) : 0;
}

std::string complement(std::string_view bits) {
  std::string result(bits);
  for (char& bit : result) {
    if (bit == '0' || bit == '1') bit = bit == '0' ? '1' : '0';
  }
  return result;
}

std::int16_t HexToDec(std::string_view digit) {
  if (digit.size() == 1 && hexValue(digit[0]) >= 10) return static_cast<std::int16_t>(hexValue(digit[0]));
  return toInt16(numberAtStart(digit)).value_or(0);
}

std::string_view BinaryToDecimal(std::string_view bits) {
  constexpr std::array<std::array<std::string_view, 2>, 4> kPairs = {
      {{"00", "00"}, {"01", "01"}, {"10", "02"}, {"11", "03"}}};
  const auto hit =
      std::find_if(kPairs.begin(), kPairs.end(), [&](const auto& pair) { return pair[0] == bits; });
  return hit == kPairs.end() ? std::string_view{} : (*hit)[1];
}

std::string DecimalToBinary(int number) {
  std::string bits;
  for (; number > 0; number /= 2) bits.insert(bits.begin(), number % 2 == 0 ? '0' : '1');
  return std::string(bits.size() < 4 ? 4 - bits.size() : 0, '0') + bits;
}

double unscaledFraction(std::string_view raw, bool isSigned) {
  if (raw.empty() || raw.size() > 4) return 0;
  std::uint32_t number = 0;
  for (const char c : raw) number = number << 8 | codeOf(c);
  const bool negative = isSigned && codeOf(raw[0]) >= 0x80;
  if (!negative) return fractionOf(number, raw.size());
  return -fractionOf(~number & 0xFFFFFFFFu >> 8 * (4 - raw.size()), raw.size());
}

std::int32_t decodeDecimal(std::string_view bytes) {
  std::int32_t value = 0;
  for (std::size_t fromEnd = 1; fromEnd <= bytes.size(); ++fromEnd) {
    value += codeOf(bytes[bytes.size() - fromEnd]) * (fromEnd == 2 ? 256 : 1);
  }
  return value;
}

}  // namespace zephon
