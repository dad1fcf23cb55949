#include "platform/memory_line.h"

#include <algorithm>
#include <cerrno>

#include "platform/error_text.h"
#include "platform/line_settings.h"

namespace zephon {

void MemoryLine::attach(LinePeer* peer, int comNumber) {
  unplug(comNumber);
  peers_[comNumber] = peer;
  peer->say = [self = std::weak_ptr(self_), peer](std::string_view bytes, int baud) {
    if (const auto line = self.lock()) (*line)->said(peer, bytes, baud);
  };
}

void MemoryLine::detach(int comNumber) {
  unplug(comNumber);
  peers_.erase(comNumber);
}

void MemoryLine::unplug(int comNumber) {
  for (auto& [handle, port] : openPorts_) {
    if (port.comNumber != comNumber || !port.peer) continue;
    port.peer->lineOpened(false);
    port.peer = nullptr;
  }
}

void MemoryLine::failNext(Call call, int error, int times) {
  auto& failures = failures_[call];
  failures.insert(failures.end(), static_cast<std::size_t>(std::max(times, 0)), error);
}

bool MemoryLine::isOpen(int comNumber) const {
  return openPort(comNumber) != nullptr;
}

std::string MemoryLine::writtenBytes() const {
  std::string all;
  for (const Written& one : written_) all += one.bytes;
  return all;
}

MemoryLine::ModemLines MemoryLine::modemLines(int comNumber) const {
  const OpenPort* port = openPort(comNumber);
  return port ? port->lines : ModemLines{};
}

const MemoryLine::OpenPort* MemoryLine::openPort(int comNumber) const {
  for (const auto& [handle, port] : openPorts_) {
    if (port.comNumber == comNumber) return &port;
  }
  return nullptr;
}

bool MemoryLine::fail(int error) {
  lastError_ = error;
  return false;
}

bool MemoryLine::ordered(Call call) {
  auto& failures = failures_[call];
  if (failures.empty()) return false;
  lastError_ = failures.front();
  failures.pop_front();
  return true;
}

MemoryLine::OpenPort* MemoryLine::begin(Call call, SerialHandle handle) {
  const auto found = openPorts_.find(handle);
  if (found == openPorts_.end()) {
    if (call == Call::Read || call == Call::Write) ++strayCalls_;
    fail(EBADF);
    return nullptr;
  }
  if (ordered(call)) return nullptr;
  if (found->second.peer || call == Call::Close) return &found->second;
  fail(EIO);
  return nullptr;
}

SerialHandle MemoryLine::open(const std::string& portName) {
  const int comNumber = comNumberOf(portName).value_or(0);
  const auto peer = peers_.find(comNumber);
  const auto busy = [&](const auto& entry) {
    return entry.second.comNumber == comNumber && entry.second.peer;
  };
  if (ordered(Call::Open)) return kInvalidHandle;
  if (peer == peers_.end()) return fail(ENOENT), kInvalidHandle;
  if (std::any_of(openPorts_.begin(), openPorts_.end(), busy)) return fail(EBUSY), kInvalidHandle;
  openPorts_.emplace(++lastHandle_, OpenPort{comNumber, peer->second});
  ++opens_;
  peer->second->lineOpened(true);
  return lastHandle_;
}

bool MemoryLine::setup(SerialHandle handle, std::uint32_t /*inputQueue*/, std::uint32_t /*outputQueue*/) {
  return begin(Call::Setup, handle) != nullptr;
}

bool MemoryLine::purge(SerialHandle handle) {
  OpenPort* port = begin(Call::Purge, handle);
  if (!port) return false;
  port->queue.clear();
  port->peer->linePurged();
  return true;
}

bool MemoryLine::setTimeouts(SerialHandle handle, const LineTimeouts& /*timeouts*/) {
  return begin(Call::SetTimeouts, handle) != nullptr;
}

bool MemoryLine::getState(SerialHandle handle, LineState& state) {
  const OpenPort* port = begin(Call::GetState, handle);
  if (port) state = port->state;
  return port != nullptr;
}

bool MemoryLine::buildState(const std::string& settings, LineState& state) {
  if (ordered(Call::BuildState)) return false;
  return applySettings(settings, state) || fail(EINVAL);
}

bool MemoryLine::setState(SerialHandle handle, const LineState& state) {
  OpenPort* port = begin(Call::SetState, handle);
  if (port) port->state = state;
  return port != nullptr;
}

bool MemoryLine::clearError(SerialHandle handle, std::uint32_t& flags, std::uint32_t& queued) {
  const OpenPort* port = begin(Call::ClearError, handle);
  if (!port) return false;
  flags = std::exchange(flags_, 0);
  queued = static_cast<std::uint32_t>(port->queue.size());
  return true;
}

bool MemoryLine::read(SerialHandle handle, std::span<char> buffer, std::uint32_t& count) {
  count = 0;
  OpenPort* port = begin(Call::Read, handle);
  if (!port) return false;
  const auto taken = std::min(buffer.size(), port->queue.size());
  const auto end = port->queue.begin() + static_cast<std::ptrdiff_t>(taken);
  std::copy(port->queue.begin(), end, buffer.begin());
  port->queue.erase(port->queue.begin(), end);
  count = static_cast<std::uint32_t>(taken);
  return true;
}

bool MemoryLine::write(SerialHandle handle, std::string_view bytes, std::uint32_t& count) {
  count = 0;
  OpenPort* port = begin(Call::Write, handle);
  if (!port) return false;
  const int most = std::exchange(shortWrite_, -1);
  if (most >= 0) bytes = bytes.substr(0, static_cast<std::size_t>(most));
  count = static_cast<std::uint32_t>(bytes.size());
  written_.push_back({loop_.now(), port->comNumber, port->state.baud, std::string(bytes)});
  if (!bytes.empty()) port->peer->hear(bytes, port->state.baud);
  return true;
}

bool MemoryLine::escapeFunction(SerialHandle handle, LineFunction function) {
  OpenPort* port = begin(Call::EscapeFunction, handle);
  if (!port) return false;
  switch (function) {
    case LineFunction::SetRts:
    case LineFunction::ClearRts:
      port->lines.rts = function == LineFunction::SetRts;
      return true;
    case LineFunction::SetDtr:
    case LineFunction::ClearDtr:
      port->lines.dtr = function == LineFunction::SetDtr;
      return true;
    case LineFunction::SetBreak:
    case LineFunction::ClearBreak:
      port->lines.sendsBreak = function == LineFunction::SetBreak;
      return true;
    case LineFunction::None:
      break;
  }
  return fail(EINVAL);
}

bool MemoryLine::close(SerialHandle handle) {
  const OpenPort* port = begin(Call::Close, handle);
  if (!port) return false;
  if (port->peer) port->peer->lineOpened(false);
  openPorts_.erase(handle);
  ++closes_;
  return true;
}

std::string MemoryLine::errorText(int error) const {
  return systemErrorText(error);
}

void MemoryLine::said(LinePeer* peer, std::string_view bytes, int baud) {
  const auto listens = [&](const auto& entry) { return entry.second.peer == peer; };
  const auto found = std::find_if(openPorts_.begin(), openPorts_.end(), listens);
  if (found == openPorts_.end()) return;
  OpenPort& port = found->second;
  if (port.state.baud == baud) port.queue.insert(port.queue.end(), bytes.begin(), bytes.end());
}

}  // namespace zephon
