#pragma once

#include <algorithm>
#include <charconv>
#include <concepts>
#include <string>
#include <string_view>

#include "text/fixed_point.h"

namespace zephon {

inline constexpr std::string_view kCrLf = "\r\n";

// Text of a document as it is put together: what a page draws, or an object. Numbers that are not whole stand
// with two decimals and a point, whatever the locale; what is no finite number stands as zero.
class Content {
 public:
  Content& operator<<(std::string_view text) {
    wrote(std::copy(text.begin(), text.end(), room(text.size())));
    return *this;
  }
  // A literal.
  template <std::size_t N>
  Content& operator<<(const char (&text)[N]) {
    wrote(std::copy_n(text, N - 1, room(N - 1)));
    return *this;
  }
  Content& operator<<(char c) {
    *room(1) = c;
    ++used_;
    return *this;
  }
  Content& operator<<(double value) { return fixed(value, 2); }
  template <std::integral Whole>
  Content& operator<<(Whole value) {
    char* const to = room(kTicksRoom);
    wrote(std::to_chars(to, to + kTicksRoom, value).ptr);
    return *this;
  }

  // With a fixed count of decimals, 0 to 9.
  Content& fixed(double value, int decimals);
  // Text in parentheses, as a document's strings stand: a backslash becomes four, and a parenthesis has one
  // before it.
  Content& quoted(std::string_view bytes);

  std::string_view text() const { return {room_.data(), used_}; }
  std::string string() const { return std::string(text()); }
  void clear() { used_ = 0; }

 private:
  // So many bytes behind the text; `wrote` tells how far they have been filled.
  char* room(std::size_t bytes) {
    if (room_.size() - used_ < bytes) grow(bytes);
    return room_.data() + used_;
  }
  void grow(std::size_t bytes);
  void wrote(const char* end) { used_ = static_cast<std::size_t>(end - room_.data()); }

  std::string room_;
  std::size_t used_ = 0;
};

}  // namespace zephon
