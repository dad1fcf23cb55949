#include "simulator/program/pty.h"

#include <fcntl.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <array>

namespace zephon::simulator {
namespace {

constexpr Instant kRetry = std::chrono::milliseconds(2);
constexpr Instant kNobodyReads = std::chrono::seconds(1);

bool makeRaw(int descriptor) {
  termios settings{};
  if (::tcgetattr(descriptor, &settings) != 0) return false;
  ::cfmakeraw(&settings);
  return ::tcsetattr(descriptor, TCSANOW, &settings) == 0;
}

// The path of the far end; empty on failure.
std::string unlockedPath(int near) {
  std::array<char, 128> path{};
  if (::grantpt(near) != 0 || ::unlockpt(near) != 0) return {};
  return ::ptsname_r(near, path.data(), path.size()) == 0 ? path.data() : "";
}

}  // namespace

std::unique_ptr<Pty> Pty::open(EventLoop& loop) {
  const int near = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
  if (near < 0) return nullptr;
  const std::string path = unlockedPath(near);
  const int far = path.empty() ? -1 : ::open(path.c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
  auto pty = std::unique_ptr<Pty>(new Pty(loop, near, far, path));
  return far >= 0 && makeRaw(far) ? std::move(pty) : nullptr;
}

Pty::~Pty() {
  loop_.cancel(retry_);
  ::close(near_);
  if (far_ >= 0) ::close(far_);
}

std::string Pty::read() {
  std::array<char, 4096> bytes{};
  const ssize_t count = ::read(near_, bytes.data(), bytes.size());
  return {bytes.data(), count > 0 ? static_cast<std::size_t>(count) : 0};
}

void Pty::write(std::string_view bytes, int baud) {
  if (baud != this->baud()) return;
  if (waiting_.empty()) lastProgress_ = loop_.now();
  waiting_ += bytes;
  if (retry_ == 0) push();
}

void Pty::push() {
  retry_ = 0;
  const ssize_t count = ::write(near_, waiting_.data(), waiting_.size());
  if (count > 0) {
    waiting_.erase(0, static_cast<std::size_t>(count));
    lastProgress_ = loop_.now();
  }
  if (loop_.now() - lastProgress_ > kNobodyReads) waiting_.clear();
  if (!waiting_.empty()) retry_ = loop_.callAt(loop_.now() + kRetry, [this] { push(); });
}

int Pty::baud() const {
  termios settings{};
  if (::tcgetattr(near_, &settings) != 0) return 0;
  switch (::cfgetospeed(&settings)) {
    case B9600:
      return 9600;
    case B115200:
      return 115200;
    default:
      return 0;
  }
}

}  // namespace zephon::simulator
