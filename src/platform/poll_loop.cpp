#include "platform/poll_loop.h"

#include <poll.h>
#include <time.h>

#include <algorithm>

namespace zephon {

PollLoop::PollLoop() : start_(std::chrono::steady_clock::now()) {}

Instant PollLoop::now() const {
  return std::chrono::steady_clock::now() - start_;
}

void PollLoop::runOnce() {
  if (nextCall() != kNever) serveCalls(now());
}

Woke PollLoop::sleepUntil(Instant deadline, int descriptor) {
  const Instant moment = now();
  if (serveCalls(moment)) return Woke::Served;
  const Instant until = std::min(deadline, nextCall());
  pollfd watched{descriptor, POLLIN, 0};
  const nfds_t count = descriptor == kNoDescriptor ? 0 : 1;
  timespec span{};
  if (until != kNever) {
    const auto left = std::max(until - moment, Instant{0});
    span.tv_sec = static_cast<time_t>(left.count() / 1'000'000'000);
    span.tv_nsec = static_cast<long>(left.count() % 1'000'000'000);
  }
  const int ready = ::ppoll(&watched, count, until == kNever ? nullptr : &span, nullptr);
  const Instant woken = now();
  if (serveCalls(woken)) return Woke::Served;
  if (ready > 0) return Woke::Readable;
  return woken >= deadline ? Woke::Deadline : Woke::Served;  // a signal counts as an event
}

}  // namespace zephon
