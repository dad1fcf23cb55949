#pragma once

#include <cstddef>
#include <string>

namespace zephon {

// What keeps a file from being read.
enum class ReadFault { None, System, NoPlainFile, TooLarge };

// A file's content, or why there is none. A pipe or a device is not waited for.
struct FileContent {
  std::string bytes;
  ReadFault fault = ReadFault::None;
  int error = 0;              // System: the system's number for the failure
  std::size_t mostBytes = 0;  // TooLarge: what is taken at most
  explicit operator bool() const { return fault == ReadFault::None; }
};

FileContent readFile(const std::string& path, std::size_t mostBytes);

}  // namespace zephon
