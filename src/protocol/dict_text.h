#pragma once

#include <string>

#include "form/main.h"

namespace zephon {

// A text of the language in use; empty when the language has no such key.
inline std::string dictText(const Main& main, std::size_t key) {
  return key < main.dict.size() ? main.dict[key] : std::string();
}

}  // namespace zephon
