#pragma once

#include <cstddef>
#include <span>
#include <string>

namespace zephon {

// The entry of a dictionary; empty text when the dictionary has no such key.
inline std::string dictText(std::span<const std::string> dict, int key) {
  const bool inside = key >= 0 && static_cast<std::size_t>(key) < dict.size();
  return inside ? dict[static_cast<std::size_t>(key)] : std::string();
}

}  // namespace zephon
