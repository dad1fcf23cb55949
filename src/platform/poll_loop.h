#pragma once

#include "platform/event_loop.h"

namespace zephon {

// Real time over ppoll(2), for a program without a window.
class PollLoop : public EventLoop {
 public:
  PollLoop();
  Instant now() const override;
  void runOnce() override;
  Woke sleepUntil(Instant deadline, int descriptor = kNoDescriptor) override;

 private:
  std::chrono::steady_clock::time_point start_;
};

}  // namespace zephon
