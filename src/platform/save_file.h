#pragma once

#include <sys/types.h>

#include <functional>
#include <string>
#include <string_view>

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
enum class SaveStep { None, Look, Create, Mode, Write, Sync, Close, Rename, SyncFolder };

struct SaveResult {
  SaveStep step = SaveStep::None;  // None: all is saved
  int error = 0;                   // the system's number for the failure
  explicit operator bool() const { return step == SaveStep::None; }
};

// In words, such as "writing: No space left on device"; empty for a success.
std::string saveErrorText(const SaveResult& result);

// Makes `bytes` the whole content of the file at `path`, in one step: they are written to a file beside it
// and put on the disk before they take its name. After any failure the old file stands untouched and nothing
// else is left behind; only after one of SyncFolder, the last step, the new file stands and might not outlive
// a power failure.
//
// A link is followed and stays. The mode of a file that exists is kept, and its owner where the system lets
// us; one that may not be written is not replaced (EACCES). What is no plain file (a device, a pipe) is
// written as it stands; a folder is EISDIR.
SaveResult saveFile(const std::string& path, std::string_view bytes,
                    const FileCalls& calls = systemFileCalls());

}  // namespace zephon
