#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace zephon {

// One growing buffer of bytes, written at its end.
class TextBuffer {
 public:
  explicit TextBuffer(std::size_t expected = 0) : text_(expected, '\0') {}

  // Room for so many bytes at the end. `wrote` tells how far it has been filled.
  char* room(std::size_t bytes) {
    if (text_.size() - used_ < bytes) grow(bytes);
    return text_.data() + used_;
  }
  void wrote(const char* end) { used_ = static_cast<std::size_t>(end - text_.data()); }

  void add(std::string_view text) { wrote(std::copy(text.begin(), text.end(), room(text.size()))); }

  std::string_view text() const { return {text_.data(), used_}; }
  void clear() { used_ = 0; }

  std::string take() {
    text_.resize(used_);
    used_ = 0;
    return std::exchange(text_, {});
  }

 private:
  // Apart, so that `room` is short enough to stand where it is called.
  void grow(std::size_t bytes);

  std::string text_;
  std::size_t used_ = 0;
};

}  // namespace zephon
