#include "pdf/content.h"

#include <algorithm>

#include "pdf/byte_words.h"
#include "text/picture.h"

namespace zephon {
namespace {

// A byte as it stands in a string.
char* putEscaped(char* to, char c) {
  const int before = c == '(' || c == ')' ? 1 : c == '\\' ? 3 : 0;
  for (int i = 0; i < before; ++i) *to++ = '\\';
  *to++ = c;
  return to;
}

std::string largeNumber(double value, int decimals) {
  const std::string zeros(static_cast<std::size_t>(decimals), '0');
  const std::string text = formatPicture(value, "###0." + zeros);
  return text.empty() ? "0" : text;
}

}  // namespace

Content& Content::fixed(double value, int decimals) {
  const auto ticks = ticksOf(value, decimals);
  if (!ticks) return *this << largeNumber(value, decimals);
  buffer_.wrote(writeTicks(buffer_.room(kTicksRoom), *ticks, decimals));
  return *this;
}

Content& Content::quoted(std::string_view bytes) {
  char* to = buffer_.room(4 * bytes.size() + 2);
  *to++ = '(';
  while (bytes.size() >= byte_words::kSize) {
    std::copy_n(bytes.data(), byte_words::kSize, to);
    const std::size_t plain = byte_words::plainBytes(byte_words::at(bytes.data()));
    to += plain;
    bytes.remove_prefix(plain);
    if (plain == byte_words::kSize) continue;
    to = putEscaped(to, bytes.front());
    bytes.remove_prefix(1);
  }
  for (const char c : bytes) to = putEscaped(to, c);
  *to++ = ')';
  buffer_.wrote(to);
  return *this;
}

}  // namespace zephon
