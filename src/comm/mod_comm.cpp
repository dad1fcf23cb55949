#include "comm/mod_comm.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <span>

namespace zephon {
namespace {

constexpr std::uint32_t kQueueSize = 1024;  // each of the driver's two queues
constexpr std::int32_t kReadBufferSize = 1024;
constexpr std::size_t kMessageSize = 255;
constexpr std::int32_t kPortInUse = -1;
constexpr std::int32_t kSubscriptOutOfRange = 9;
constexpr int kPassesAfterWrite = 10;

// Reads return at once with what is there; a write may take a second a byte.
constexpr LineTimeouts kTimeouts{0xFFFFFFFF, 0, 1000, 1000, 0};

PortRecord* findPort(const Port& port, std::int16_t id) {
  const auto count = static_cast<std::int16_t>(port.table.ports.size());
  return id >= 1 && id <= count ? &port.table.ports[static_cast<std::size_t>(id - 1)] : nullptr;
}

std::int32_t record(const Port& port, std::int32_t code, const char* source, const std::string& message) {
  port.table.lastCommError = {code, source, message};
  return code;
}

std::int32_t noSuchPort(const Port& port, const char* source) {
  return record(port, kSubscriptOutOfRange, source, "Subscript out of range");
}

std::string getSystemMessage(const Port& port, int error) {
  std::string text = port.serial.errorText(error).substr(0, kMessageSize);
  text = text.substr(0, text.find('\0'));
  const auto first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// Records the failure of the call just made.
std::int32_t SetCommError(const Port& port, const char* source) {
  const int error = port.serial.lastError();
  return record(port, error, source, getSystemMessage(port, error));
}

// The same, with the port's error flags behind the text.
void SetCommErrorEx(const Port& port, int error, const char* source, SerialHandle handle) {
  std::uint32_t flags = 0;
  std::uint32_t queued = 0;
  port.serial.clearError(handle, flags, queued);
  std::array<char, 16> hex{};
  std::snprintf(hex.data(), hex.size(), "%X", flags);
  record(port, error, source, getSystemMessage(port, error) + "  COMM Error Flags = " + hex.data());
}

// Sets up a device that was just opened. The source text of the step that failed, nothing if all is well.
const char* prepare(SerialDevice& serial, PortRecord& entry, const std::string& settings) {
  const SerialHandle handle = entry.handle;
  if (!serial.setup(handle, kQueueSize, kQueueSize)) return "CommOpen (SetupComm)";
  if (!serial.purge(handle)) return "CommOpen (PurgeComm)";
  if (!serial.setTimeouts(handle, kTimeouts)) return "CommOpen (SetCommTimeouts)";
  if (!serial.getState(handle, entry.dcb)) return "CommOpen (GetCommState)";
  if (!serial.buildState(settings, entry.dcb)) return "CommOpen (BuildCommDCB)";
  if (!serial.setState(handle, entry.dcb)) return "CommOpen (SetCommState)";
  return nullptr;
}

LineFunction lineFunction(std::int16_t line, bool state) {
  switch (line) {
    case kLineBreak:
      return state ? LineFunction::SetBreak : LineFunction::ClearBreak;
    case kLineDtr:
      return state ? LineFunction::SetDtr : LineFunction::ClearDtr;
    case kLineRts:
      return state ? LineFunction::SetRts : LineFunction::ClearRts;
    default:
      return LineFunction::None;
  }
}

}  // namespace

std::int32_t CommOpen(const Port& port, std::int16_t id, const std::string& name,
                      const std::string& settings) {
  PortRecord* entry = findPort(port, id);
  if (!entry) return noSuchPort(port, "CommOpen");
  if (entry->open) return record(port, kPortInUse, "CommOpen", "Port in use.");
  entry->handle = port.serial.open(name);
  if (entry->handle == kInvalidHandle) return SetCommError(port, "CommOpen (CreateFile)");
  entry->open = true;
  if (const char* failed = prepare(port.serial, *entry, settings)) return SetCommError(port, failed);
  return 0;
}

std::int32_t CommClose(const Port& port, std::int16_t id) {
  PortRecord* entry = findPort(port, id);
  if (!entry) return noSuchPort(port, "CommClose");
  if (!entry->open) return 0;
  if (!port.serial.close(entry->handle)) return SetCommError(port, "CommClose (CloseHandle)");
  entry->open = false;
  return 0;
}

std::int32_t CommFlush(const Port& port, std::int16_t id) {
  const PortRecord* entry = findPort(port, id);
  if (!entry) return noSuchPort(port, "CommFlush");
  if (!port.serial.purge(entry->handle)) return SetCommError(port, "CommFlush (PurgeComm)");
  return 0;
}

// A read or write of the device finishes within its call, so there is no pending transfer to wait for,
// neither here nor in CommWrite.
std::int32_t CommRead(const Port& port, std::int16_t id, std::string& out, std::int32_t maximum) {
  out.clear();
  port.loop.runOnce();
  const PortRecord* entry = findPort(port, id);
  if (!entry) return noSuchPort(port, "CommRead");
  std::uint32_t flags = 0;
  std::uint32_t queued = 0;
  if (!port.serial.clearError(entry->handle, flags, queued)) {
    SetCommError(port, "CommRead (ClearCommError)");
    return -1;
  }
  if (queued == 0) return 0;
  // All that waits is taken, however little was asked for, but no more than the buffer holds: the rest stays
  // queued.
  const auto waiting = static_cast<std::int32_t>(std::min<std::uint32_t>(queued, kReadBufferSize));
  const std::int32_t size = std::min(std::max(waiting, maximum), kReadBufferSize);
  std::array<char, kReadBufferSize> buffer;
  std::uint32_t count = 0;
  if (!port.serial.read(entry->handle, std::span(buffer).first(static_cast<std::size_t>(size)), count)) {
    SetCommErrorEx(port, port.serial.lastError(), "CommRead (ReadFile)", entry->handle);
    return -1;
  }
  out.assign(buffer.data(), count);
  return static_cast<std::int32_t>(count);
}

std::int32_t CommWrite(const Port& port, std::int16_t id, const std::string& bytes) {
  const PortRecord* entry = findPort(port, id);
  if (!entry) return noSuchPort(port, "CommWrite");
  const SerialHandle handle = entry->handle;
  std::uint32_t count = 0;
  const bool written = port.serial.write(handle, bytes, count);
  const int error = written ? 0 : port.serial.lastError();  // what runs in the pass may fail in its turn
  port.loop.runOnce();
  if (error != 0) {
    SetCommErrorEx(port, error, "CommWrite (WriteFile)", handle);
    return -1;
  }
  if (written) {
    for (int pass = 0; pass < kPassesAfterWrite; ++pass) port.loop.runOnce();
  }
  return static_cast<std::int32_t>(count);
}

std::int32_t CommSetLine(const Port& port, std::int16_t id, std::int16_t line, bool state) {
  const PortRecord* entry = findPort(port, id);
  if (!entry) return noSuchPort(port, "CommSetLine");
  if (!port.serial.escapeFunction(entry->handle, lineFunction(line, state))) {
    return SetCommError(port, "CommSetLine (EscapeCommFunction)");
  }
  return 0;
}

std::int32_t CommGetError(const PortTable& table, std::string& out) {
  const CommError& last = table.lastCommError;
  out = "Error (" + std::to_string(last.code) + "): " + last.source + " - " + last.message;
  return last.code;
}

namespace {

// True if bytes wait to be read; a line that hung up has none.
bool bytesWait(const Port& port, const PortRecord& entry) {
  std::uint32_t flags = 0;
  std::uint32_t queued = 0;
  return port.serial.clearError(entry.handle, flags, queued) && queued > 0;
}

}  // namespace

Woke CommAwait(const Port& port, std::int16_t id, Instant deadline) {
  const PortRecord* entry = findPort(port, id);
  if (!entry) return port.loop.sleepUntil(deadline);
  const int descriptor = port.serial.descriptor(entry->handle);
  if (descriptor == kNoDescriptor) {
    return bytesWait(port, *entry) ? Woke::Readable : port.loop.sleepUntil(deadline);
  }
  const Woke woke = port.loop.sleepUntil(deadline, descriptor);
  if (woke != Woke::Readable || bytesWait(port, *entry)) return woke;
  return port.loop.sleepUntil(deadline);
}

}  // namespace zephon
