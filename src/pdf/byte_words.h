#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

namespace zephon {

// Bytes looked at eight at a time, for texts that are written by the ten thousand.
namespace byte_words {

inline constexpr std::size_t kSize = sizeof(std::uint64_t);
inline constexpr std::uint64_t kOnes = 0x0101010101010101;
inline constexpr std::uint64_t kHighs = 0x80 * kOnes;

inline std::uint64_t at(const char* bytes) {
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, kSize);
  return word;
}

inline bool holdsZero(std::uint64_t word) {
  return ((word - kOnes) & ~word & kHighs) != 0;
}

// Parentheses differ in their lowest bit alone.
inline bool needsEscape(std::uint64_t word) {
  return holdsZero((word | kOnes) ^ (')' * kOnes)) || holdsZero(word ^ ('\\' * kOnes));
}

}  // namespace byte_words

}  // namespace zephon
