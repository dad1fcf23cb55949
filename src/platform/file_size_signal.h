#pragma once

#include <signal.h>

namespace zephon {

// While it stands, a write beyond the limit of the file size is an error to tell, not the end of the program.
class FileSizeSignalOff {
 public:
  FileSizeSignalOff() { before_ = ::signal(SIGXFSZ, SIG_IGN); }
  FileSizeSignalOff(const FileSizeSignalOff&) = delete;
  FileSizeSignalOff& operator=(const FileSizeSignalOff&) = delete;
  ~FileSizeSignalOff() { ::signal(SIGXFSZ, before_); }

 private:
  sighandler_t before_;
};

}  // namespace zephon
