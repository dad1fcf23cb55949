#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>

#include "platform/event_loop.h"

namespace zephon::simulator {

// One direction of the serial line: bytes leave one after the other, ten bits each, and are handed over when
// their last bit has passed. Never earlier; later only by what a batch of up to a millisecond gathers, and
// the last byte of a run on its own moment.
class WireQueue {
 public:
  enum class Batch { EachByte, UpToOneMillisecond };

  // A baud of 0 is a line without delay: bytes are handed over in the next pass of the loop.
  WireQueue(EventLoop& loop, int baud, Batch batch, std::function<void(std::string_view)> deliver);
  WireQueue(const WireQueue&) = delete;
  WireQueue& operator=(const WireQueue&) = delete;
  ~WireQueue();

  // Puts bytes behind what is still on its way; the first starts no earlier than `earliest`.
  void send(std::string_view bytes, Instant earliest);
  // When all that it was given will have passed.
  Instant freeAt() const { return free_; }
  // Loses everything on its way.
  void clear();
  // Loses what has passed the line already and was only waiting for its batch.
  void dropArrived();

 private:
  struct Run {
    Instant start;
    std::string bytes;
    std::size_t done = 0;
  };

  Instant spanOf(std::size_t bytes) const;
  // Takes off what has passed the line by now.
  std::string takeArrived();
  void schedule();
  void tick();

  EventLoop& loop_;
  const int baud_;
  const std::size_t batch_;
  const std::function<void(std::string_view)> deliver_;
  std::deque<Run> runs_;
  Instant free_{0};  // when the line has passed all that it was given
  EventLoop::CallId call_ = 0;
};

}  // namespace zephon::simulator
