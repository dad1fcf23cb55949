#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/event_loop.h"

namespace zephon::simulator {

// A pseudo-terminal in raw mode that plays the serial cable. Another program opens its far end, path(), as a
// serial port, as often as it likes: this object keeps that end open too, so that nobody's closing hangs up.
class Pty {
 public:
  // Nothing, with errno set, if the system gives no pseudo-terminal.
  static std::unique_ptr<Pty> open(EventLoop& loop);
  Pty(const Pty&) = delete;
  Pty& operator=(const Pty&) = delete;
  ~Pty();

  const std::string& path() const { return path_; }
  // What a loop may watch for something to read.
  int descriptor() const { return near_; }

  // What was written to the far end and not read yet. Never waits.
  std::string read();
  // Brings bytes to the far end. They are lost if its speed is not `baud`, and if nobody reads there for a
  // second.
  void write(std::string_view bytes, int baud);
  // The speed that the far end has set; 0 for one that no device has.
  int baud() const;

 private:
  Pty(EventLoop& loop, int near, int far, std::string path)
      : loop_(loop), near_(near), far_(far), path_(std::move(path)) {}
  void push();

  EventLoop& loop_;
  const int near_;
  const int far_;
  const std::string path_;
  std::string waiting_;  // did not fit into the system's buffer
  Instant lastProgress_{0};
  EventLoop::CallId retry_ = 0;
};

}  // namespace zephon::simulator
