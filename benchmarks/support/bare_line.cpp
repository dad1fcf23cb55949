#include "support/bare_line.h"

#include <poll.h>
#include <unistd.h>

#include <array>
#include <chrono>

#include "protocol/exchange.h"

namespace zephon::benchmarks {
namespace {

using Clock = std::chrono::steady_clock;

void pollFor(int file, double milliseconds) {
  pollfd watched{file, POLLIN, 0};
  ::poll(&watched, 1, static_cast<int>(milliseconds));
}

void spin(double milliseconds) {
  const auto end = Clock::now() + fromMillis(milliseconds);
  while (Clock::now() < end) {
  }
}

}  // namespace

const Waiting kPoll = {pollFor, [](double milliseconds) { pollFor(-1, milliseconds); }};
const Waiting kBusy = {[](int, double) {}, spin};

int fileOf(const Main& main) {
  return main.around.serial.descriptor(main.link.table.ports.front().handle);
}

bool exchange(int file, const DeviceCommand& command, const Waiting& waiting) {
  const auto end = Clock::now() + fromMillis(command.timeoutMs);
  if (::write(file, command.text.data(), command.text.size()) < 0) return false;
  std::array<char, 1024> reply;
  for (ssize_t gathered = 0; gathered < command.replyBytes;) {
    waiting.readable(file, command.timeoutMs);
    const ssize_t count = ::read(file, reply.data(), reply.size());
    if (count > 0) gathered += count;
    if (Clock::now() > end) return false;
  }
  return true;
}

bool barePass(int file, const Dialogue& pass, const Waiting& waiting) {
  for (const Step& step : pass) {
    if (!step.command) {
      waiting.time(step.pauseMs);
    } else if (!exchange(file, *step.command, waiting)) {
      return false;
    }
  }
  return true;
}

void letLateBytesGo(Main& main) {
  constexpr double kLateMs = 200;
  wait(main, kLateMs);
  flushPort(main);
}

}  // namespace zephon::benchmarks
