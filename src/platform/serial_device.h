#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "platform/port_advice.h"

namespace zephon {

// An open serial device. Negative is none.
using SerialHandle = int;
inline constexpr SerialHandle kInvalidHandle = -1;

// The line settings of a port.
struct LineState {
  int baud = 0;
  char parity = 'N';
  int dataBits = 8;
  int stopBits = 1;
  bool operator==(const LineState&) const = default;
};

// Milliseconds. An interval of 0xFFFFFFFF means that a read returns at once with what is there.
struct LineTimeouts {
  std::uint32_t readInterval = 0;
  std::uint32_t readTotalMultiplier = 0;
  std::uint32_t readTotalConstant = 0;
  std::uint32_t writeTotalMultiplier = 0;
  std::uint32_t writeTotalConstant = 0;
};

// Codes of escapeFunction.
enum class LineFunction : int {
  None = 0,
  SetRts = 3,
  ClearRts = 4,
  SetDtr = 5,
  ClearDtr = 6,
  SetBreak = 8,
  ClearBreak = 9
};

// The thin set of calls under the port layer, one for each that it needs. Every call answers true on success;
// after a false one lastError() holds the system's error number and errorText() its words.
class SerialDevice {
 public:
  SerialDevice() = default;
  SerialDevice(const SerialDevice&) = delete;
  SerialDevice& operator=(const SerialDevice&) = delete;
  virtual ~SerialDevice() = default;

  // `portName` is "COM" and a number. The device belongs to one owner: while it is open a second open fails.
  virtual SerialHandle open(const std::string& portName) = 0;
  virtual bool setup(SerialHandle handle, std::uint32_t inputQueue, std::uint32_t outputQueue) = 0;
  // Aborts and clears both directions.
  virtual bool purge(SerialHandle handle) = 0;
  virtual bool setTimeouts(SerialHandle handle, const LineTimeouts& timeouts) = 0;
  virtual bool getState(SerialHandle handle, LineState& state) = 0;
  // Lays a mode string such as "baud=9600 parity=N data=8 stop=1" over `state`. Touches no device.
  virtual bool buildState(const std::string& settings, LineState& state) = 0;
  virtual bool setState(SerialHandle handle, const LineState& state) = 0;
  // The line's error flags (cleared by the call) and the count of bytes waiting to be read.
  virtual bool clearError(SerialHandle handle, std::uint32_t& flags, std::uint32_t& queued) = 0;
  // Never blocks: `count` is what was there, 0 included.
  virtual bool read(SerialHandle handle, std::span<char> buffer, std::uint32_t& count) = 0;
  virtual bool write(SerialHandle handle, std::string_view bytes, std::uint32_t& count) = 0;
  virtual bool escapeFunction(SerialHandle handle, LineFunction function) = 0;
  virtual bool close(SerialHandle handle) = 0;

  virtual int lastError() const = 0;
  virtual std::string errorText(int error) const = 0;
  // What there is to know about an open that failed with `error`.
  virtual PortAdvice advice(const std::string& /*portName*/, int /*error*/) const { return {}; }

  // What the event loop may watch while somebody waits for bytes; kNoDescriptor where arrivals are loop
  // events.
  virtual int descriptor(SerialHandle handle) const = 0;
};

}  // namespace zephon
