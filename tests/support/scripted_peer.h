#pragma once

#include <deque>
#include <map>
#include <string>
#include <vector>

#include "platform/event_loop.h"
#include "platform/line_peer.h"

namespace zephon::testing_support {

// A far end for exact byte cases: whenever a write is exactly a known command it says the reply that was
// ordered for it, a while later. Everything else is heard in silence. Like a device, it loses what it has not
// said yet when the line is purged.
class ScriptedPeer : public LinePeer {
 public:
  explicit ScriptedPeer(EventLoop& loop) : loop_(loop) {}

  // Replies to one command queue up; the last one is given again and again. An empty reply is silence.
  void answer(const std::string& command, std::string reply, double afterMs = 1) {
    replies_[command].queue.push_back({std::move(reply), afterMs});
  }
  // Forgets the replies to a command: silence from now on.
  void silence(const std::string& command) { replies_.erase(command); }

  // The writes heard, one entry each, in order.
  const std::vector<std::string>& heard() const { return heard_; }
  void forgetHeard() { heard_.clear(); }

  void hear(std::string_view bytes, int baud) override {
    heard_.emplace_back(bytes);
    const auto found = replies_.find(heard_.back());
    if (found == replies_.end()) return;
    Replies& replies = found->second;
    if (!replies.queue.empty()) {
      replies.last = replies.queue.front();
      replies.queue.pop_front();
    }
    const Reply reply = replies.last;
    pending_.push_back(loop_.callAt(loop_.now() + fromMillis(reply.afterMs),
                                    [this, reply, baud] { say(reply.bytes, baud); }));
  }
  void linePurged() override {
    for (const EventLoop::CallId call : pending_) loop_.cancel(call);
    pending_.clear();
  }

 private:
  struct Reply {
    std::string bytes;
    double afterMs = 0;
  };
  struct Replies {
    std::deque<Reply> queue;
    Reply last;  // given again when the queue is empty
  };

  EventLoop& loop_;
  std::map<std::string, Replies> replies_;
  std::vector<std::string> heard_;
  std::vector<EventLoop::CallId> pending_;
};

}  // namespace zephon::testing_support
