#pragma once

#include <deque>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/event_loop.h"
#include "platform/line_peer.h"
#include "platform/serial_device.h"

namespace zephon {

// Serial ports without a cable: whatever is written to a port is heard by the peer attached to it, and what
// the peer says waits in the port's receive queue. A port without a peer does not exist (ENOENT).
//
// What can go wrong at a real port can be ordered here: a call that fails, a write that stays short, a cable
// that is pulled. Bytes that get lost or come late are for the peer to leave out or to hold back.
class MemoryLine : public SerialDevice {
 public:
  enum class Call {
    Open,
    Setup,
    Purge,
    SetTimeouts,
    GetState,
    BuildState,
    SetState,
    ClearError,
    Read,
    Write,
    EscapeFunction,
    Close
  };
  struct Written {
    Instant at;
    int comNumber;
    int baud;
    std::string bytes;
  };
  struct ModemLines {
    bool rts = false;
    bool dtr = false;
    bool sendsBreak = false;
  };

  explicit MemoryLine(EventLoop& loop) : loop_(loop) {}

  // Plugs a peer into COM`comNumber`, in place of the one before. The peer has to outlive its last use here.
  void attach(LinePeer* peer, int comNumber);
  // Pulls the cable: the port no longer exists, and every call on its open handle but close fails with EIO.
  void detach(int comNumber);

  // The next `times` calls of this kind fail with `error` and do nothing. Failures queue up behind each
  // other.
  void failNext(Call call, int error, int times = 1);
  // The next write takes only `count` bytes and succeeds.
  void shortenNextWrite(std::uint32_t count) { shortWrite_ = static_cast<int>(count); }
  // Error flags that the next clearError reports and clears.
  void raiseFlags(std::uint32_t flags) { flags_ |= flags; }

  int opens() const { return opens_; }
  int closes() const { return closes_; }
  bool isOpen(int comNumber) const;
  // Reads and writes that were tried on a port that was not open.
  int strayCalls() const { return strayCalls_; }
  const std::vector<Written>& written() const { return written_; }
  // All bytes written so far, joined.
  std::string writtenBytes() const;
  void forgetWritten() { written_.clear(); }
  ModemLines modemLines(int comNumber) const;

  SerialHandle open(const std::string& portName) override;
  bool setup(SerialHandle handle, std::uint32_t inputQueue, std::uint32_t outputQueue) override;
  bool purge(SerialHandle handle) override;
  bool setTimeouts(SerialHandle handle, const LineTimeouts& timeouts) override;
  bool getState(SerialHandle handle, LineState& state) override;
  bool buildState(const std::string& settings, LineState& state) override;
  bool setState(SerialHandle handle, const LineState& state) override;
  bool clearError(SerialHandle handle, std::uint32_t& flags, std::uint32_t& queued) override;
  bool read(SerialHandle handle, std::span<char> buffer, std::uint32_t& count) override;
  bool write(SerialHandle handle, std::string_view bytes, std::uint32_t& count) override;
  bool escapeFunction(SerialHandle handle, LineFunction function) override;
  bool close(SerialHandle handle) override;
  int lastError() const override { return lastError_; }
  std::string errorText(int error) const override;
  int descriptor(SerialHandle /*handle*/) const override { return kNoDescriptor; }

 private:
  struct OpenPort {
    int comNumber;
    LinePeer* peer;  // none: the cable was pulled
    LineState state{9600};
    ModemLines lines{};
    std::deque<char> queue{};
  };

  bool fail(int error);
  // True, with the error set, if a failure was ordered for this call.
  bool ordered(Call call);
  // The open port behind the handle, if this call on it can go on; otherwise nothing, with the error set.
  OpenPort* begin(Call call, SerialHandle handle);
  const OpenPort* openPort(int comNumber) const;
  void unplug(int comNumber);
  void said(LinePeer* peer, std::string_view bytes, int baud);

  EventLoop& loop_;
  std::map<int, LinePeer*> peers_;
  std::map<SerialHandle, OpenPort> openPorts_;
  std::map<Call, std::deque<int>> failures_;
  std::vector<Written> written_;
  SerialHandle lastHandle_ = 0;
  int lastError_ = 0;
  int shortWrite_ = -1;
  std::uint32_t flags_ = 0;
  int opens_ = 0;
  int closes_ = 0;
  int strayCalls_ = 0;
  // What peers ask before they touch this line: it may be gone.
  std::shared_ptr<MemoryLine*> self_ = std::make_shared<MemoryLine*>(this);
};

}  // namespace zephon
