#pragma once

#include "platform/event_loop.h"

namespace zephon {

// Virtual time: a sleep costs nothing, it moves the clock to the next timed call or to the deadline. A test
// schedules the user's clicks and the line's bytes as timed calls. Descriptors are not watched.
class VirtualLoop : public EventLoop {
 public:
  Instant now() const override { return now_; }
  void runOnce() override;
  Woke sleepUntil(Instant deadline, int descriptor = kNoDescriptor) override;

  // Runs whatever falls into the next `span`, and leaves the clock at its end.
  void advance(Instant span);

 private:
  Instant now_{0};
};

}  // namespace zephon
