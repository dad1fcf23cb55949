#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <utility>

namespace zephon {

// Time since the loop's own start; it never goes back.
using Instant = std::chrono::nanoseconds;
using Millis = std::chrono::duration<double, std::milli>;

inline constexpr Instant kNever = Instant::max();
inline constexpr int kNoDescriptor = -1;

// A span of time. One that is no number is none; a longer one than a century counts as a century, so that it
// can be added to any instant.
inline Instant fromMillis(double milliseconds) {
  constexpr double kCentury = 100 * 365.25 * 24 * 3600 * 1000;
  if (milliseconds != milliseconds) return Instant{0};
  return std::chrono::duration_cast<Instant>(Millis(std::clamp(milliseconds, -kCentury, kCentury)));
}

// Why a sleep ended.
enum class Woke {
  Served,    // a timer or a user's event was served
  Readable,  // the watched descriptor has something to read, or its far end has gone
  Deadline,  // the deadline passed
};

// The one loop that everything runs on: one thread, timers, the user's events. Three kinds stand behind it:
// virtual time for tests (VirtualLoop), poll(2) for a program without a window (PollLoop) and Qt's loop.
//
// Calls nest: what runs from a pass may itself run passes. A timed call is taken off the list before it runs.
class EventLoop {
 public:
  using CallId = std::uint64_t;  // 0 is no call

  EventLoop() = default;
  EventLoop(const EventLoop&) = delete;
  EventLoop& operator=(const EventLoop&) = delete;
  virtual ~EventLoop() = default;

  virtual Instant now() const = 0;

  // One pass: serves what is due and what waits, without sleeping.
  virtual void runOnce() = 0;

  // Sleeps until something can be served and serves it, until `descriptor` can be read, or until the
  // deadline. A descriptor whose far end hung up counts as readable every time: a caller that then reads
  // nothing must stop watching it.
  virtual Woke sleepUntil(Instant deadline, int descriptor = kNoDescriptor) = 0;

  // Runs `call` once, at `when` or as soon after it as the loop turns.
  CallId callAt(Instant when, std::function<void()> call);
  void cancel(CallId id);

 protected:
  // The instant of the earliest timed call, kNever without one.
  Instant nextCall() const;
  // Runs the calls that are due at `moment`; calls added meanwhile wait for the next pass. True if any ran.
  bool serveCalls(Instant moment);
  // Told after each change of the list, for a loop that sleeps in somebody else's timer.
  virtual void callsChanged() {}

 private:
  std::map<std::pair<Instant, CallId>, std::function<void()>> calls_;
  std::map<CallId, Instant> dueOf_;
  CallId lastId_ = 0;
};

}  // namespace zephon
