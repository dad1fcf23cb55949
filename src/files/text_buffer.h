#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace zephon {

// One growing buffer of bytes, written at its end.
class TextBuffer {
 public:
  explicit TextBuffer(std::size_t expected) : text_(expected, '\0') {}

  // Room for so many bytes at the end. `wrote` tells how far it has been filled.
  char* room(std::size_t bytes) {
    if (text_.size() - used_ < bytes) text_.resize(std::max(text_.size() * 2, used_ + bytes));
    return text_.data() + used_;
  }
  void wrote(const char* end) { used_ = static_cast<std::size_t>(end - text_.data()); }

  void add(std::string_view text) { wrote(std::copy(text.begin(), text.end(), room(text.size()))); }

  std::string take() {
    text_.resize(used_);
    return std::move(text_);
  }

 private:
  std::string text_;
  std::size_t used_ = 0;
};

}  // namespace zephon
