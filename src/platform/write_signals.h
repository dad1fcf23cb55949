#pragma once

#include <signal.h>

namespace zephon {

// While it stands, a write beyond the limit of the file size, or to a pipe whose reader has left, is an error to
// tell, not the end of the program.
class WriteSignalsOff {
 public:
  WriteSignalsOff() : size_(::signal(SIGXFSZ, SIG_IGN)), pipe_(::signal(SIGPIPE, SIG_IGN)) {}
  WriteSignalsOff(const WriteSignalsOff&) = delete;
  WriteSignalsOff& operator=(const WriteSignalsOff&) = delete;
  ~WriteSignalsOff() {
    ::signal(SIGXFSZ, size_);
    ::signal(SIGPIPE, pipe_);
  }

 private:
  sighandler_t size_;
  sighandler_t pipe_;
};

}  // namespace zephon
