#pragma once

#include <sys/types.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace zephon {

// The system's calls that a save makes, so that a test can let any of them fail. Each answers as the system's
// own does: negative with errno set for a failure.
struct FileCalls {
  std::function<int(const char* path, int flags, mode_t mode)> open;
  std::function<ssize_t(int file, const void* bytes, std::size_t count)> write;
  std::function<int(int file, mode_t mode)> fchmod;
  std::function<int(int file)> fsync;
  std::function<int(int file)> close;
  std::function<int(const char* from, const char* to)> rename;
};

FileCalls systemFileCalls();

// What a save was at when it failed.
enum class SaveStep { None, Look, Create, Mode, Write, Sync, Close, Folder, Rename };

struct SaveResult {
  SaveStep step = SaveStep::None;  // None: all is saved
  int error = 0;                   // the system's number for the failure
  explicit operator bool() const { return step == SaveStep::None; }
};

// A save in pieces, for what is too large to be held whole. The pieces are written to a file beside the
// target and put on the disk before they take its name. After any failure, and when it is dropped unfinished,
// the old file stands untouched and nothing else is left behind; there is nothing more to call. After a
// success the new file stands; where its folder can't be put on the disk, a power failure might bring the old
// one back.
//
// A link is followed and stays. The mode of a file that exists is kept, and its owner where the system lets
// us; one that may not be written is not replaced (EACCES). What is no plain file (a device, a pipe) is
// written as it stands: a pipe without a reader is ENXIO, one whose reader takes nothing for two seconds is
// ETIMEDOUT. A folder is EISDIR.
class FileSave {
 public:
  explicit FileSave(FileCalls calls = systemFileCalls()) : calls_(std::move(calls)) {}
  FileSave(const FileSave&) = delete;
  FileSave& operator=(const FileSave&) = delete;
  ~FileSave() { drop(); }

  SaveResult begin(const std::string& path);
  SaveResult write(std::string_view bytes);
  SaveResult finish();
  bool isOpen() const { return file_ >= 0; }
  // Ends it without a save.
  void drop();

 private:
  SaveResult open(const std::string& target);
  SaveResult dropped(SaveResult why);
  SaveResult putInPlace();

  FileCalls calls_;
  int file_ = -1;
  std::string target_;
  std::string beside_;  // empty where the target itself is written
};

// Makes `bytes` the whole content of the file at `path`, in one step and with the promises above.
SaveResult saveFile(const std::string& path, std::string_view bytes,
                    const FileCalls& calls = systemFileCalls());

}  // namespace zephon
