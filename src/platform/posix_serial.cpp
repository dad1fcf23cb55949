#include "platform/posix_serial.h"

#include <fcntl.h>
#include <linux/serial.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <thread>
#include <utility>

#include "platform/error_text.h"
#include "platform/event_loop.h"
#include "platform/line_settings.h"
#include "platform/port_advice.h"
#include "platform/termios_state.h"

namespace zephon {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

// A full queue holds the whole program up, so less than the time-outs would allow.
constexpr std::uint64_t kLongestWrite = 500;
constexpr milliseconds kLongestDrain{100};

// True for the errors of a device that does not know a request: it has no such lines or counters.
bool isUnknownRequest(int error) {
  return error == ENOTTY || error == EINVAL;
}

bool hasModemLines(int file) {
  int lines = 0;
  return ::ioctl(file, TIOCMGET, &lines) == 0 || !isUnknownRequest(errno);
}

milliseconds writeLimit(const LineTimeouts& timeouts, std::size_t bytes) {
  const std::uint64_t allowed =
      timeouts.writeTotalConstant + std::uint64_t{timeouts.writeTotalMultiplier} * bytes;
  return milliseconds(std::min(allowed, kLongestWrite));
}

// True once there is room to write; false at the end of the time.
bool awaitRoom(int file, Clock::time_point end) {
  const auto left = std::chrono::ceil<milliseconds>(end - Clock::now()).count();
  pollfd watched{file, POLLOUT, 0};
  if (left <= 0) return false;
  return ::poll(&watched, 1, static_cast<int>(left)) != 0;
}

// Lets the last command out, but not for ever: a close would wait for a stuck cable for half a minute.
void drain(int file) {
  const auto end = Clock::now() + kLongestDrain;
  int waiting = 0;
  while (::ioctl(file, TIOCOUTQ, &waiting) == 0 && waiting > 0) {
    if (Clock::now() >= end) {
      ::tcflush(file, TCOFLUSH);
      return;
    }
    std::this_thread::sleep_for(milliseconds(1));
  }
}

// Nothing for a device that does not count.
std::optional<std::array<int, 5>> errorCounts(int file) {
  serial_icounter_struct counts{};
  if (::ioctl(file, TIOCGICOUNT, &counts) != 0) return std::nullopt;
  return std::array{counts.buf_overrun, counts.overrun, counts.parity, counts.frame, counts.brk};
}

struct Request {
  unsigned long request;
  LineFunction function;
  int lines;  // none for the break, whose requests take no argument
};

constexpr Request kRequests[] = {
    {TIOCMBIS, LineFunction::SetRts, TIOCM_RTS}, {TIOCMBIC, LineFunction::ClearRts, TIOCM_RTS},
    {TIOCMBIS, LineFunction::SetDtr, TIOCM_DTR}, {TIOCMBIC, LineFunction::ClearDtr, TIOCM_DTR},
    {TIOCSBRK, LineFunction::SetBreak, 0},       {TIOCCBRK, LineFunction::ClearBreak, 0}};

}  // namespace

PosixSerial::~PosixSerial() {
  while (!devices_.empty()) PosixSerial::close(devices_.begin()->first);
}

bool PosixSerial::fail(int error) {
  lastError_ = error;
  return false;
}

bool PosixSerial::answer(int result) {
  return result >= 0 || fail(errno);
}

PosixSerial::Device* PosixSerial::find(SerialHandle handle) {
  const auto found = devices_.find(handle);
  if (found != devices_.end()) return &found->second;
  fail(EBADF);
  return nullptr;
}

// The lock keeps out whoever asks for it, root too; the exclusive mark keeps out the programs that don't ask.
// A pseudo-terminal gets no mark: it would outlive a killed program for as long as its other end stands.
bool PosixSerial::claim(int file) {
  if (!::isatty(file)) return fail(errno);
  if (::flock(file, LOCK_EX | LOCK_NB) != 0) return fail(errno == EWOULDBLOCK ? EBUSY : errno);
  if (!hasModemLines(file)) return true;
  int marked = 0;
  if (::ioctl(file, TIOCGEXCL, &marked) == 0 && marked) return fail(EBUSY);  // only root gets this far
  return answer(::ioctl(file, TIOCEXCL));
}

SerialHandle PosixSerial::open(const std::string& portName) {
  const std::string path = devicePath(folders_, portName);
  const int file = ::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
  if (!answer(file)) return kInvalidHandle;
  if (!claim(file)) {
    ::close(file);
    return kInvalidHandle;
  }
  devices_.emplace(++lastHandle_, Device{file, {}, errorCounts(file)});
  return lastHandle_;
}

bool PosixSerial::setup(SerialHandle handle, std::uint32_t /*inputQueue*/, std::uint32_t /*outputQueue*/) {
  return find(handle) != nullptr;
}

bool PosixSerial::purge(SerialHandle handle) {
  const Device* device = find(handle);
  return device && answer(::tcflush(device->file, TCIOFLUSH));
}

bool PosixSerial::setTimeouts(SerialHandle handle, const LineTimeouts& timeouts) {
  Device* device = find(handle);
  if (device) device->timeouts = timeouts;
  return device != nullptr;
}

bool PosixSerial::getState(SerialHandle handle, LineState& state) {
  const Device* device = find(handle);
  termios terminal{};
  if (!device || !answer(::tcgetattr(device->file, &terminal))) return false;
  state = lineStateOf(terminal);
  return true;
}

bool PosixSerial::buildState(const std::string& settings, LineState& state) {
  return applySettings(settings, state) || fail(EINVAL);
}

bool PosixSerial::setState(SerialHandle handle, const LineState& state) {
  const Device* device = find(handle);
  termios terminal{};
  if (!device || !answer(::tcgetattr(device->file, &terminal))) return false;
  if (!makeBareLine(terminal, state)) return fail(EINVAL);
  if (!answer(::tcsetattr(device->file, TCSANOW, &terminal))) return false;
  // The system calls it a success when it could change anything at all.
  LineState taken;
  if (!getState(handle, taken)) return false;
  return taken == state || fail(EINVAL);
}

std::uint32_t PosixSerial::newErrors(Device& device) {
  const ErrorCounts now = errorCounts(device.file).value_or(*device.errors);
  const ErrorCounts before = std::exchange(*device.errors, now);
  std::uint32_t flags = 0;
  for (std::size_t i = 0; i < now.size(); ++i) flags |= (now[i] != before[i] ? 1u : 0u) << i;
  return flags;
}

bool PosixSerial::clearError(SerialHandle handle, std::uint32_t& flags, std::uint32_t& queued) {
  flags = queued = 0;
  Device* device = find(handle);
  int waiting = 0;
  // A line whose far end has gone answers this with EIO by itself.
  if (!device || !answer(::ioctl(device->file, FIONREAD, &waiting))) return false;
  flags = device->errors ? newErrors(*device) : 0;
  queued = static_cast<std::uint32_t>(waiting);
  return true;
}

bool PosixSerial::read(SerialHandle handle, std::span<char> buffer, std::uint32_t& count) {
  count = 0;
  const Device* device = find(handle);
  if (!device) return false;
  if (buffer.empty()) return true;
  ssize_t taken = -1;
  do {
    taken = ::read(device->file, buffer.data(), buffer.size());
  } while (taken < 0 && errno == EINTR);
  if (taken == 0) return fail(EIO);
  if (taken < 0) return errno == EAGAIN || fail(errno);
  count = static_cast<std::uint32_t>(taken);
  return true;
}

bool PosixSerial::write(SerialHandle handle, std::string_view bytes, std::uint32_t& count) {
  count = 0;
  const Device* device = find(handle);
  if (!device) return false;
  const auto end = Clock::now() + writeLimit(device->timeouts, bytes.size());
  while (!bytes.empty()) {
    const ssize_t taken = ::write(device->file, bytes.data(), bytes.size());
    if (taken < 0 && errno == EINTR) continue;
    if (taken < 0 && errno != EAGAIN) return fail(errno);
    if (taken <= 0) {
      if (!awaitRoom(device->file, end)) return true;  // a write that ran out of time is no failure
      continue;
    }
    bytes.remove_prefix(static_cast<std::size_t>(taken));
    count += static_cast<std::uint32_t>(taken);
  }
  return true;
}

bool PosixSerial::escapeFunction(SerialHandle handle, LineFunction function) {
  const Device* device = find(handle);
  if (!device) return false;
  const auto request = std::ranges::find(kRequests, function, &Request::function);
  if (request == std::end(kRequests)) return fail(EINVAL);
  const int done = request->lines ? ::ioctl(device->file, request->request, &request->lines)
                                  : ::ioctl(device->file, request->request);
  return done == 0 || isUnknownRequest(errno) || fail(errno);
}

// The file is gone whatever the system's close answers, so nothing can be tried again.
bool PosixSerial::close(SerialHandle handle) {
  const Device* device = find(handle);
  if (!device) return false;
  drain(device->file);
  ::ioctl(device->file, TIOCNXCL);
  ::flock(device->file, LOCK_UN);
  ::close(device->file);
  devices_.erase(handle);
  return true;
}

std::string PosixSerial::errorText(int error) const {
  return systemErrorText(error);
}

PortAdvice PosixSerial::advice(const std::string& portName, int error) const {
  return portAdvice(devicePath(folders_, portName), error, {.folders = folders_});
}

int PosixSerial::descriptor(SerialHandle handle) const {
  const auto found = devices_.find(handle);
  return found == devices_.end() ? kNoDescriptor : found->second.file;
}

}  // namespace zephon
