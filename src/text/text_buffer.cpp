#include "text/text_buffer.h"

namespace zephon {
namespace {

constexpr std::size_t kSmallest = 512;

}  // namespace

void TextBuffer::grow(std::size_t bytes) {
  text_.resize(std::max({kSmallest, 2 * text_.size(), used_ + bytes}));
}

}  // namespace zephon
