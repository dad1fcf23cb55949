#include "simulator/encode.h"

#include <algorithm>
#include <cmath>

namespace zephon::simulator {
namespace {

// `value` rounded and held within `bytes` bytes, most significant first.
std::string bigEndian(double value, int bytes) {
  const double top = std::ldexp(1.0, 8 * bytes) - 1.0;
  const auto whole = static_cast<std::uint64_t>(std::clamp(std::round(value), 0.0, top));
  std::string text;
  for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8)
    text += asChar(static_cast<int>(whole >> shift & 0xFF));
  return text;
}

}  // namespace

std::string unsignedFraction(double share, int bytes) {
  return bigEndian(std::ldexp(share, 8 * bytes), bytes);
}

std::string signedFraction(double share, int bytes) {
  const double top = std::ldexp(1.0, 8 * bytes - 1) - 1.0;
  const double magnitude = std::min(std::round(std::ldexp(std::abs(share), 8 * bytes)), top);
  std::string text = bigEndian(magnitude, bytes);
  if (share < 0) std::transform(text.begin(), text.end(), text.begin(), [](char c) { return asChar(~c); });
  return text;
}

std::string twosComplement(double share, int bytes) {
  const double all = std::ldexp(1.0, 8 * bytes);
  const double whole = std::clamp(std::round(share * all), -all / 2, all / 2 - 1);
  return bigEndian(whole < 0 ? whole + all : whole, bytes);
}

std::string fixedPoint8_24(double value) {
  return bigEndian(std::ldexp(value, 24), 4);
}

std::string bigEndian16(std::uint32_t count) {
  return bigEndian(count, 2);
}

std::string bigEndian24(std::uint32_t address) {
  return bigEndian(address, 3);
}

std::string littleEndian16(double value) {
  const auto whole = static_cast<int>(std::clamp(std::round(value), 0.0, 65535.0));
  return {asChar(whole), asChar(whole >> 8)};
}

std::string signedLittleEndian16(double value) {
  const auto whole = static_cast<int>(std::clamp(std::round(value), -32768.0, 32767.0));
  return {asChar(whole), asChar(whole >> 8)};
}

char wholeByte(double value) {
  return asChar(static_cast<int>(std::clamp(std::round(value), 0.0, 255.0)));
}

std::uint8_t toBcd(std::int64_t number) {
  const auto held = std::clamp<std::int64_t>(number, 0, 99);
  return static_cast<std::uint8_t>(held / 10 * 16 + held % 10);
}

std::optional<int> fromBcd(std::uint8_t byte) {
  if (byte >> 4 > 9 || (byte & 15) > 9) return std::nullopt;
  return (byte >> 4) * 10 + (byte & 15);
}

}  // namespace zephon::simulator
