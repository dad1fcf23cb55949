#include "pdf/content.h"

#include <algorithm>

#include "pdf/byte_words.h"
#include "text/picture.h"

namespace zephon {
namespace {

// A byte as it stands in a string.
char* putEscaped(char* to, char c) {
  const std::string_view before = c == '(' || c == ')' ? "\\" : c == '\\' ? "\\\\\\" : "";
  to = std::copy(before.begin(), before.end(), to);
  *to = c;
  return to + 1;
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
  while (!bytes.empty()) {
    const std::size_t count = std::min(bytes.size(), byte_words::kSize);
    if (count == byte_words::kSize && !byte_words::needsEscape(byte_words::at(bytes.data()))) {
      to = std::copy_n(bytes.data(), byte_words::kSize, to);
    } else {
      for (const char c : bytes.substr(0, count)) to = putEscaped(to, c);
    }
    bytes.remove_prefix(count);
  }
  *to++ = ')';
  buffer_.wrote(to);
  return *this;
}

}  // namespace zephon
