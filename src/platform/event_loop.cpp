#include "platform/event_loop.h"

namespace zephon {

EventLoop::CallId EventLoop::callAt(Instant when, std::function<void()> call) {
  const CallId id = ++lastId_;
  calls_.emplace(std::pair{when, id}, std::move(call));
  dueOf_.emplace(id, when);
  callsChanged();
  return id;
}

void EventLoop::cancel(CallId id) {
  const auto due = dueOf_.find(id);
  if (due == dueOf_.end()) return;
  calls_.erase({due->second, id});
  dueOf_.erase(due);
  callsChanged();
}

Instant EventLoop::nextCall() const {
  return calls_.empty() ? kNever : calls_.begin()->first.first;
}

bool EventLoop::serveCalls(Instant moment) {
  const CallId newest = lastId_;
  bool any = false;
  for (auto next = calls_.begin(); next != calls_.end() && next->first.first <= moment;) {
    if (next->first.second > newest) {
      ++next;
      continue;
    }
    auto call = std::move(next->second);
    dueOf_.erase(next->first.second);
    calls_.erase(next);
    any = true;
    callsChanged();  // the call may run the loop itself, which then has to wake for the next one
    call();
    next = calls_.begin();  // the call may have changed the list in any way
  }
  if (any) callsChanged();
  return any;
}

}  // namespace zephon
