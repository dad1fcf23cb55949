#pragma once

#include <charconv>
#include <concepts>
#include <string>
#include <string_view>

#include "text/fixed_point.h"
#include "text/text_buffer.h"

namespace zephon {

inline constexpr std::string_view kCrLf = "\r\n";

// Text of a document as it is put together: what a page draws, or an object. Numbers that are not whole stand
// with two decimals and a point, whatever the locale; what is no finite number stands as zero.
class Content {
 public:
  Content& operator<<(std::string_view text) {
    buffer_.add(text);
    return *this;
  }
  // A literal.
  template <std::size_t N>
  Content& operator<<(const char (&text)[N]) {
    buffer_.add({text, N - 1});
    return *this;
  }
  Content& operator<<(char c) {
    buffer_.add({&c, 1});
    return *this;
  }
  Content& operator<<(double value) { return fixed(value, 2); }
  template <std::integral Whole>
  Content& operator<<(Whole value) {
    char* const to = buffer_.room(kTicksRoom);
    buffer_.wrote(std::to_chars(to, to + kTicksRoom, value).ptr);
    return *this;
  }

  // With a fixed count of decimals, 0 to 9.
  Content& fixed(double value, int decimals);
  // Text in parentheses, as a document's strings stand: a backslash becomes four, and a parenthesis has one
  // before it.
  Content& quoted(std::string_view bytes);

  std::string_view text() const { return buffer_.text(); }
  std::string string() const { return std::string(text()); }
  void clear() { buffer_.clear(); }

 private:
  TextBuffer buffer_;
};

}  // namespace zephon
