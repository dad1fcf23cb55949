#include "platform/virtual_loop.h"

#include <algorithm>

namespace zephon {

void VirtualLoop::runOnce() {
  serveCalls(now_);
}

Woke VirtualLoop::sleepUntil(Instant deadline, int /*descriptor*/) {
  if (serveCalls(now_)) return Woke::Served;
  const Instant next = nextCall();
  if (next == kNever && deadline == kNever) return Woke::Deadline;  // nothing can ever happen
  if (next > deadline) {
    now_ = std::max(now_, deadline);
    return Woke::Deadline;
  }
  now_ = std::max(now_, next);
  serveCalls(now_);
  return Woke::Served;
}

void VirtualLoop::advance(Instant span) {
  const Instant end = now_ + span;
  while (sleepUntil(end) != Woke::Deadline) {
  }
}

}  // namespace zephon
