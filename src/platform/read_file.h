#pragma once

#include <cstddef>
#include <string>

namespace zephon {

// A file's content, or why there is none: the system's words, or those for what is no plain file and for one
// that is too large. A pipe or a device is not waited for.
struct FileContent {
  std::string bytes;
  std::string fault;  // empty for a success
  explicit operator bool() const { return fault.empty(); }
};

FileContent readFile(const std::string& path, std::size_t mostBytes);

}  // namespace zephon
