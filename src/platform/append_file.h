#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/save_file.h"

namespace zephon {

// A file that only grows, and is one program's own while it does: no other program can take hold of it, and a
// program that ends in whatever way lets go of it. What has been appended outlives the program; a failure of
// the computer itself may cost the last half minute of it.
class AppendFile {
 public:
  AppendFile() = default;
  AppendFile(AppendFile&& other) noexcept;
  AppendFile& operator=(AppendFile&& other) noexcept;
  ~AppendFile() { close(); }

  // Makes a file, which must not stand yet (EEXIST), and the folders above it. The user alone may read it.
  SaveResult create(const std::string& path);
  // Takes hold of one that stands; EWOULDBLOCK while another program holds it.
  SaveResult take(const std::string& path);

  bool isOpen() const { return file_ >= 0; }
  const std::string& path() const { return path_; }
  std::uint64_t size() const { return size_; }

  // Adds all of the bytes or none: after a failure the file is as long as it was, and the same may be tried
  // again.
  SaveResult append(std::string_view bytes);
  // Keeps the first bytes only.
  SaveResult cut(std::uint64_t size);
  void close();
  // Closes it, and it is gone.
  void remove();

 private:
  SaveResult hold(const std::string& path, int flags);

  int file_ = -1;
  std::string path_;
  std::uint64_t size_ = 0;
};

}  // namespace zephon
