#include "platform/append_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/write_signals.h"

namespace zephon {
namespace {

SaveResult failed(SaveStep step) {
  return {step, errno};
}

}  // namespace

AppendFile::AppendFile(AppendFile&& other) noexcept {
  *this = std::move(other);
}

AppendFile& AppendFile::operator=(AppendFile&& other) noexcept {
  if (this == &other) return *this;
  close();
  file_ = std::exchange(other.file_, -1);
  path_ = std::exchange(other.path_, {});
  size_ = std::exchange(other.size_, 0);
  return *this;
}

SaveResult AppendFile::create(const std::string& path) {
  std::error_code ignored;  // a folder that can't be made shows when the file can't
  std::filesystem::create_directories(std::filesystem::path(path).parent_path(), ignored);
  return hold(path, O_CREAT | O_EXCL);
}

SaveResult AppendFile::take(const std::string& path) {
  return hold(path, 0);
}

// A file system that knows no locks holds nothing back.
SaveResult AppendFile::hold(const std::string& path, int flags) {
  close();
  file_ = ::open(path.c_str(), O_WRONLY | O_CLOEXEC | flags, 0600);
  if (file_ < 0) return failed(SaveStep::Create);
  path_ = path;
  struct stat status {};
  const bool held = ::flock(file_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
  if (!held || ::fstat(file_, &status) != 0) {
    const SaveResult result = failed(SaveStep::Look);
    close();
    return result;
  }
  size_ = static_cast<std::uint64_t>(status.st_size);
  return {};
}

// Written at a place of its own, so that what a failed write left behind is written over.
SaveResult AppendFile::append(std::string_view bytes) {
  const WriteSignalsOff quiet;
  const std::uint64_t before = size_;
  while (!bytes.empty()) {
    const ssize_t count = ::pwrite(file_, bytes.data(), bytes.size(), static_cast<off_t>(size_));
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) {
      if (count == 0) errno = EIO;  // no progress, and no reason given
      const SaveResult result = failed(SaveStep::Write);
      cut(before);
      return result;
    }
    bytes.remove_prefix(static_cast<std::size_t>(count));
    size_ += static_cast<std::uint64_t>(count);
  }
  return {};
}

SaveResult AppendFile::cut(std::uint64_t size) {
  size_ = size;
  return ::ftruncate(file_, static_cast<off_t>(size)) == 0 ? SaveResult{} : failed(SaveStep::Write);
}

void AppendFile::close() {
  if (file_ >= 0) ::close(std::exchange(file_, -1));
}

void AppendFile::remove() {
  close();
  ::unlink(path_.c_str());
}

}  // namespace zephon
