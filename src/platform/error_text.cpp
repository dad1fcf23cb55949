#include "platform/error_text.h"

#include <array>
#include <cstring>

namespace zephon {

std::string systemErrorText(int error) {
  std::array<char, 256> buffer{};
  return ::strerror_r(error, buffer.data(), buffer.size());  // the form that returns the text
}

}  // namespace zephon
