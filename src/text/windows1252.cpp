#include "text/windows1252.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace zephon {
namespace {

// Bytes 0x80 to 0x9F; all others are the character of the same number.
constexpr std::array<char32_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// One character at the front of a UTF-8 text, and its bytes. Ill-formed: one byte, not `valid`.
struct Character {
  char32_t code = 0;
  std::size_t bytes = 1;
  bool valid = false;
};

std::uint8_t byteAt(std::string_view text, std::size_t i) {
  return static_cast<std::uint8_t>(text[i]);
}

std::size_t sequenceLength(std::uint8_t lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead < 0xE0) return 2;
  if (lead >= 0xE0 && lead < 0xF0) return 3;
  return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

// Overlong forms, surrogates and numbers past the last character are no UTF-8.
bool isLegal(char32_t code, std::size_t bytes) {
  constexpr std::array<char32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};
  return code >= kSmallest[bytes] && code <= 0x10FFFF && !(code >= 0xD800 && code <= 0xDFFF);
}

Character firstCharacter(std::string_view text) {
  const std::uint8_t lead = byteAt(text, 0);
  const std::size_t bytes = sequenceLength(lead);
  if (bytes == 0 || bytes > text.size()) return {};
  char32_t code = bytes == 1 ? lead : lead & (0x7Fu >> bytes);
  for (std::size_t i = 1; i < bytes; ++i) {
    if ((byteAt(text, i) & 0xC0) != 0x80) return {};
    code = code << 6 | (byteAt(text, i) & 0x3Fu);
  }
  if (!isLegal(code, bytes)) return {};
  return {code, bytes, true};
}

char toByte(char32_t code) {
  if (code < 0x80 || (code >= 0xA0 && code <= 0xFF)) return static_cast<char>(code);
  const auto hit = std::find(kUpperControls.begin(), kUpperControls.end(), code);
  return hit == kUpperControls.end() ? '?' : static_cast<char>(0x80 + (hit - kUpperControls.begin()));
}

// Codes below 0x10000: the code page has no others.
void appendUtf8(std::string& result, char32_t code) {
  if (code < 0x80) {
    result += static_cast<char>(code);
    return;
  }
  if (code < 0x800) {
    result += static_cast<char>(0xC0 | code >> 6);
  } else {
    result += static_cast<char>(0xE0 | code >> 12);
    result += static_cast<char>(0x80 | (code >> 6 & 0x3F));
  }
  result += static_cast<char>(0x80 | (code & 0x3F));
}

}  // namespace

std::string toWindows1252(std::string_view utf8) {
  std::string result;
  result.reserve(utf8.size());
  while (!utf8.empty()) {
    const Character character = firstCharacter(utf8);
    result += character.valid ? toByte(character.code) : '?';
    utf8.remove_prefix(character.bytes);
  }
  return result;
}

std::string fromWindows1252(std::string_view bytes) {
  std::string result;
  result.reserve(bytes.size());
  for (const char c : bytes) {
    const auto byte = static_cast<std::uint8_t>(c);
    appendUtf8(result, byte >= 0x80 && byte < 0xA0 ? kUpperControls[byte - 0x80u] : char32_t{byte});
  }
  return result;
}

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    const Character character = firstCharacter(text);
    if (!character.valid) return false;
    text.remove_prefix(character.bytes);
  }
  return true;
}

// Eight bytes at a time: files of many megabytes are looked at.
bool isAscii(std::string_view text) {
  std::uint64_t seen = 0;
  for (; text.size() >= sizeof seen; text.remove_prefix(sizeof seen)) {
    std::uint64_t word = 0;
    std::memcpy(&word, text.data(), sizeof word);
    seen |= word;
  }
  for (const char c : text) seen |= static_cast<unsigned char>(c);
  return (seen & 0x8080808080808080) == 0;
}

}  // namespace zephon
