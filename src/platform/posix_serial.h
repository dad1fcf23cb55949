#pragma once

#include <array>
#include <map>
#include <optional>

#include "platform/port_folders.h"
#include "platform/serial_device.h"

namespace zephon {

// The computer's serial ports, over termios.
//
// A handle is a number of this object's own and is never given out twice, so that a stale one reaches no
// other file: every call on it fails with EBADF. A line whose far end hung up fails with EIO, once what it
// had sent is read. What is written waits for room at most half a second; the count then tells what went out.
class PosixSerial : public SerialDevice {
 public:
  explicit PosixSerial(PortFolders folders = systemPortFolders()) : folders_(std::move(folders)) {}
  ~PosixSerial() override;

  // One owner at a time, other programs and this very object included: EBUSY. ENOTTY for what is no serial
  // port.
  SerialHandle open(const std::string& portName) override;
  // The system sizes its queues itself.
  bool setup(SerialHandle handle, std::uint32_t inputQueue, std::uint32_t outputQueue) override;
  bool purge(SerialHandle handle) override;
  bool setTimeouts(SerialHandle handle, const LineTimeouts& timeouts) override;
  bool getState(SerialHandle handle, LineState& state) override;
  bool buildState(const std::string& settings, LineState& state) override;
  // EINVAL if the device did not take the settings as they stand.
  bool setState(SerialHandle handle, const LineState& state) override;
  // Flags: 1 queue overflow, 2 overrun, 4 parity, 8 framing, 16 break.
  bool clearError(SerialHandle handle, std::uint32_t& flags, std::uint32_t& queued) override;
  bool read(SerialHandle handle, std::span<char> buffer, std::uint32_t& count) override;
  bool write(SerialHandle handle, std::string_view bytes, std::uint32_t& count) override;
  // A device without modem lines has nothing to set: done.
  bool escapeFunction(SerialHandle handle, LineFunction function) override;
  bool close(SerialHandle handle) override;

  int lastError() const override { return lastError_; }
  std::string errorText(int error) const override;
  PortAdvice advice(const std::string& portName, int error) const override;
  int descriptor(SerialHandle handle) const override;

 private:
  // Line errors since the device came up, in the order of their flags.
  using ErrorCounts = std::array<int, 5>;
  struct Device {
    int file;
    LineTimeouts timeouts{};
    std::optional<ErrorCounts> errors;  // of a device that counts them
  };

  bool fail(int error);
  // Success unless `result` is negative, as the system's calls have it.
  bool answer(int result);
  Device* find(SerialHandle handle);
  bool claim(int file);
  // The flags of what has gone wrong since the last call, on a device that counts.
  static std::uint32_t newErrors(Device& device);

  PortFolders folders_;
  std::map<SerialHandle, Device> devices_;
  SerialHandle lastHandle_ = 0;
  int lastError_ = 0;
};

}  // namespace zephon
