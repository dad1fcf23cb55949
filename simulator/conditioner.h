#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "platform/event_loop.h"
#include "platform/line_peer.h"
#include "simulator/command_parser.h"
#include "simulator/device.h"
#include "simulator/fault.h"
#include "simulator/options.h"
#include "simulator/profile.h"
#include "simulator/wire_queue.h"

namespace zephon::simulator {

// A simulated power conditioner at the far end of a serial line: put it there as the line's peer, and it
// answers what it hears at its own line's speed and pace. It hears a command only when its last byte has
// passed the wire, and its reply's bytes come one byte's time after the other, gathered in batches of up to a
// millisecond. Bytes at another speed are noise. The loop must outlive it.
class Conditioner : public LinePeer {
 public:
  explicit Conditioner(EventLoop& loop, const Profile& profile = {}, const Options& options = {});

  void hear(std::string_view bytes, int baud) override;
  void lineOpened(bool open) override;
  void linePurged() override;

  const Profile& profile() const { return device_.profile(); }
  // The device's registers, options and site, brought up to this moment. After a change to its limits or
  // switches, look() makes it act on them at once.
  Device& device();
  // What the meters see at this moment. A reply holds these values as they were when its command had arrived.
  SiteValues truth() { return device().values(); }
  // Pins values until release(): hold({.volts = 118.5, .amps = 3.0}). Held volts hold off all
  // disturbances.
  void hold(const Held& held) { device().hold(held); }
  void release() { device().release(); }

  void addFault(const Fault& fault) { faults_.add(fault, loop_.now()); }
  // Ends all faults and restores a dead line.
  void clearFaults();
  // A dead line hears and says nothing.
  void cutLine();
  void restoreLine() { lineDead_ = false; }

  // The commands heard, oldest first, those that a fault struck included; the oldest are dropped when there
  // are too many (Options). clearLog() forgets them all, and what was sent.
  const std::deque<Heard>& heard() const { return heard_; }
  // Bytes that belonged to no command, those at another speed included.
  const std::string& noise() const { return noise_; }
  // All bytes of the replies in order, as they were put on the line.
  const std::string& sent() const { return sent_; }
  // The bytes of the newest reply, faults included; empty if the last command had none.
  const std::string& lastReply() const { return lastReply_; }
  void clearLog();

 private:
  void arrived(std::string_view bytes);
  void answer(const Command& command);
  Answer run(const Command& command, const std::vector<Fault>& faults);
  void speak(const Spoken& spoken);
  void keepNoise(std::string_view bytes);
  void said(std::string_view bytes);

  EventLoop& loop_;
  const Options options_;
  Device device_;
  CommandParser parser_;
  FaultList faults_;
  WireQueue inbound_;
  WireQueue outbound_;
  bool lineDead_ = false;

  std::deque<Heard> heard_;
  std::string noise_;
  std::string sent_;
  std::string lastReply_;
};

}  // namespace zephon::simulator
