#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "files/file_kind.h"
#include "form/words.h"

namespace zephon {

// What a file tells of the device that its table came from. Texts are UTF-8.
struct FileIdentity {
  std::string userID;
  std::string firmwareVersion;
  std::string chipID;
  int nominalVolts = 120;
  bool secondLine = false;  // the ID is the second line's own; without it the line is not told
  bool operator==(const FileIdentity&) const = default;
};

// Where a file stops being what it should be. Lines count from 1, bytes from 0; a fault has one of the two.
struct FileFault {
  std::optional<std::size_t> line;
  std::optional<std::size_t> offset;
  Word expected;             // what should have stood there
  std::string filling = {};  // in the word's place, if it has one
};

// A table out of a file, whole; or the fault, and nothing else.
template <class Table>
struct FileReading {
  Table table;
  FileIdentity identity;
  std::optional<FileFault> fault;
  explicit operator bool() const { return !fault; }
};

// No reader takes a larger file.
inline constexpr std::size_t kLargestFile = 256u << 20;

}  // namespace zephon
