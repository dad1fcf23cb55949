#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/save_file.h"

namespace zephon {

// A document's objects on their way to the file, with their numbers and the table of their offsets.
//
// The offsets are sums of the lengths of the texts written: the line end behind each text and the markers
// between them are not counted, so the table is approximate, and readers find the objects by their heads.
// Numbers have 16 bits and offsets 32: past either the document is too large a file (EFBIG).
class ObjectFile {
 public:
  SaveResult open(const std::string& path);
  bool isOpen() const { return save_.isOpen(); }

  // The number of the next object. Its text is what is written next.
  int start();
  int last() const { return static_cast<int>(offsets_.size()); }
  std::int64_t offset() const { return offset_; }
  // One for each object, from number 1 on.
  const std::vector<std::int64_t>& offsets() const { return offsets_; }

  // A piece of a text, and its last piece with the line end behind it.
  void write(std::string_view piece);
  void writeLine(std::string_view piece);
  // A line that no offset counts.
  void writeMarker(std::string_view marker);

  // Puts the file in its place. After a failure, then or before, nothing of it is left.
  SaveResult finish();

 private:
  void append(std::string_view bytes);
  void flush();
  void check(const SaveResult& result);

  FileSave save_;
  std::string pending_;
  std::vector<std::int64_t> offsets_;
  std::int64_t offset_ = 0;
  SaveResult failure_;  // the first
};

}  // namespace zephon
