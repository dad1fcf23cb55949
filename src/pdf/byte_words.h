#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

namespace zephon {

// Bytes looked at eight at a time, for texts that are written by the ten thousand.
namespace byte_words {

inline constexpr std::size_t kSize = sizeof(std::uint64_t);
inline constexpr std::uint64_t kOnes = 0x0101010101010101;
inline constexpr std::uint64_t kHighs = 0x80 * kOnes;

// The first byte is the lowest one.
inline std::uint64_t at(const char* bytes) {
  const auto byte = [&](int i) { return std::uint64_t{static_cast<unsigned char>(bytes[i])} << 8 * i; };
  return byte(0) | byte(1) | byte(2) | byte(3) | byte(4) | byte(5) | byte(6) | byte(7);
}

// Not 0 where a byte is; the lowest bit that is set lies in the first of them.
inline std::uint64_t zeros(std::uint64_t word) {
  return (word - kOnes) & ~word & kHighs;
}

// How many bytes stand before the first parenthesis or backslash. Parentheses differ in their lowest bit alone.
inline std::size_t plainBytes(std::uint64_t word) {
  const std::uint64_t special = zeros((word | kOnes) ^ (')' * kOnes)) | zeros(word ^ ('\\' * kOnes));
  return static_cast<std::size_t>(std::countr_zero(special)) / 8;
}

}  // namespace byte_words

}  // namespace zephon
