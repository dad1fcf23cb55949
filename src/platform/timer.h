#pragma once

#include <functional>

#include "platform/event_loop.h"

namespace zephon {

// A repeating timer with an on-off state. While enabled it ticks every interval until somebody disables it;
// a tick does not disable it. Setting the interval of a running timer starts its period anew, enabling an
// enabled one changes nothing. It ticks only while the loop runs, and at most once a millisecond.
class Timer {
 public:
  explicit Timer(EventLoop& loop) : loop_(loop) {}
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;
  ~Timer() { setEnabled(false); }

  std::function<void()> onTick;

  double interval() const { return milliseconds_; }
  void setInterval(double milliseconds);
  bool enabled() const { return call_ != 0; }
  void setEnabled(bool on);

 private:
  void schedule();

  EventLoop& loop_;
  double milliseconds_ = 0;
  EventLoop::CallId call_ = 0;
};

}  // namespace zephon
