#include "platform/save_file.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <optional>
#include <system_error>
#include <utility>

#include "platform/write_signals.h"

namespace zephon {
namespace {

namespace fs = std::filesystem;

constexpr int kMostLinks = 40;
constexpr int kMostNames = 100;
constexpr int kPatienceMs = 2000;  // with a reader that takes nothing out of its pipe

SaveResult failed(SaveStep step) {
  return {step, errno};
}

// Follows the links of the last name, to what may not exist yet. Nothing if they go in a circle. The link of an
// open pipe, as "/dev/stdout" is one, tells no name and stays.
std::optional<fs::path> targetOf(fs::path path) {
  for (int i = 0; i < kMostLinks; ++i) {
    std::error_code error;
    if (fs::is_other(path, error)) return path;
    const fs::path next = fs::read_symlink(path, error);
    if (error) return path;
    path = path.parent_path() / next;  // an absolute link takes the place of the whole
  }
  errno = ELOOP;
  return std::nullopt;
}

std::string folderOf(const fs::path& path) {
  return path.has_parent_path() ? path.parent_path().string() : ".";
}

// A full pipe makes room once its reader reads; ETIMEDOUT when that takes too long.
bool waitForRoom(int file) {
  pollfd room{file, POLLOUT, 0};
  const int ready = ::poll(&room, 1, kPatienceMs);
  if (ready == 0) errno = ETIMEDOUT;
  return ready > 0 || (ready < 0 && errno == EINTR);
}

SaveResult writeAll(int file, std::string_view bytes, const FileCalls& calls) {
  while (!bytes.empty()) {
    const ssize_t count = calls.write(file, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0 && errno == EAGAIN && waitForRoom(file)) continue;
    if (count == 0) errno = EIO;  // no progress, and no reason given
    if (count <= 0) return failed(SaveStep::Write);
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return {};
}

// Some file systems and devices have nothing to put on a disk, and say so.
bool sync(int file, const FileCalls& calls) {
  return calls.fsync(file) == 0 || errno == EINVAL || errno == ENOTSUP;
}

// Makes a new file beside the target. Its name is short whatever the target's, which may be as long as names
// get.
int createBeside(const std::string& folder, std::string& name, const FileCalls& calls) {
  for (int i = 0; i < kMostNames; ++i) {
    name = folder + "/.zephon-" + std::to_string(::getpid()) + "-" + std::to_string(i) + ".tmp";
    const int file = calls.open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file >= 0 || errno != EEXIST) return file;
  }
  return -1;
}

}  // namespace

FileCalls systemFileCalls() {
  return {[](const char* path, int flags, mode_t mode) { return ::open(path, flags, mode); },
          ::write,
          ::fchmod,
          ::fsync,
          ::close,
          [](const char* from, const char* to) { return std::rename(from, to); }};
}

SaveResult FileSave::begin(const std::string& path) {
  drop();
  if (path.empty()) return {SaveStep::Look, ENOENT};
  const auto target = targetOf(path);
  return target ? open(target->string()) : failed(SaveStep::Look);
}

SaveResult FileSave::open(const std::string& target) {
  struct stat old {};
  const bool exists = ::stat(target.c_str(), &old) == 0;
  if (!exists && errno != ENOENT) return failed(SaveStep::Look);
  if (exists && S_ISDIR(old.st_mode)) return {SaveStep::Look, EISDIR};
  target_ = target;
  if (exists && !S_ISREG(old.st_mode)) {
    file_ = calls_.open(target.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY, 0);
    return file_ < 0 ? failed(SaveStep::Create) : SaveResult{};
  }
  if (exists && ::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) return failed(SaveStep::Look);
  std::string beside;
  file_ = createBeside(folderOf(target), beside, calls_);
  if (file_ < 0) return failed(SaveStep::Create);
  beside_ = std::move(beside);
  if (!exists) return {};
  // Only root gives files away: for anybody else the new one is the user's own.
  [[maybe_unused]] const int given = ::fchown(file_, old.st_uid, old.st_gid);
  return calls_.fchmod(file_, old.st_mode & 07777) == 0 ? SaveResult{} : dropped(failed(SaveStep::Mode));
}

SaveResult FileSave::write(std::string_view bytes) {
  const WriteSignalsOff quiet;
  const SaveResult result = writeAll(file_, bytes, calls_);
  return result ? result : dropped(result);
}

SaveResult FileSave::finish() {
  if (!sync(file_, calls_)) return dropped(failed(SaveStep::Sync));
  if (calls_.close(std::exchange(file_, -1)) != 0) return dropped(failed(SaveStep::Close));
  return beside_.empty() ? SaveResult{} : putInPlace();
}

// The folder is opened first, so that a failure there still leaves the old file. One that may not be read can't
// be synced. Once the new file has its name it is saved: a failure to sync the folder takes nothing back.
SaveResult FileSave::putInPlace() {
  const int folder = calls_.open(folderOf(target_).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0);
  if (folder < 0 && errno != EACCES) return dropped(failed(SaveStep::Folder));
  SaveResult result;
  if (calls_.rename(beside_.c_str(), target_.c_str()) == 0)
    beside_.clear();
  else
    result = failed(SaveStep::Rename);
  if (folder >= 0) {
    if (result) calls_.fsync(folder);
    calls_.close(folder);
  }
  return result ? result : dropped(result);
}

SaveResult FileSave::dropped(SaveResult why) {
  drop();
  return why;
}

void FileSave::drop() {
  if (file_ >= 0) calls_.close(std::exchange(file_, -1));
  if (!beside_.empty()) ::unlink(beside_.c_str());
  beside_.clear();
}

SaveResult saveFile(const std::string& path, std::string_view bytes, const FileCalls& calls) {
  FileSave save(calls);
  SaveResult result = save.begin(path);
  if (result) result = save.write(bytes);
  if (result) result = save.finish();
  return result;
}

}  // namespace zephon
