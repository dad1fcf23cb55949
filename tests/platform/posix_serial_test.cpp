#include "platform/posix_serial.h"

#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <functional>
#include <utility>

#include "support/temp_folder.h"

namespace zephon {
namespace {

constexpr LineState kFast{115200, 'N', 8, 1};

// A pseudo-terminal that stands as COM3 in a folder of ports. The test is its far end.
class PosixSerialTest : public testing::Test {
 protected:
  PosixSerialTest() {
    int near = -1;
    EXPECT_EQ(::openpty(&far_, &near, nullptr, nullptr, nullptr), 0);
    std::filesystem::create_symlink(::ttyname(near), folder_ / "COM3");
    ::close(near);
  }
  ~PosixSerialTest() override { hangUp(); }

  void hangUp() {
    if (far_ >= 0) ::close(std::exchange(far_, -1));
  }
  SerialHandle openRaw() {
    const SerialHandle handle = serial_.open("COM3");
    EXPECT_TRUE(serial_.setState(handle, kFast)) << serial_.errorText(serial_.lastError());
    return handle;
  }
  // Everything that the far end hears until nothing comes for a while.
  std::string heard() {
    std::string all;
    char buffer[4096];
    pollfd watched{far_, POLLIN, 0};
    while (::poll(&watched, 1, 50) > 0) {
      const ssize_t count = ::read(far_, buffer, sizeof buffer);
      if (count > 0) all.append(buffer, static_cast<std::size_t>(count));
    }
    return all;
  }
  // Lets the far end say something, and waits until all of it is in the queue.
  void say(SerialHandle handle, const std::string& bytes) {
    ASSERT_EQ(::write(far_, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    std::uint32_t flags = 1, queued = 0;
    for (int i = 0; i < 1000 && queued < bytes.size(); ++i) {
      ASSERT_TRUE(serial_.clearError(handle, flags, queued));
      ::usleep(1000);
    }
    EXPECT_EQ(flags, 0u);
    ASSERT_EQ(queued, bytes.size());
  }

  TempFolder folder_;
  int far_ = -1;
  PosixSerial serial_{PortFolders{folder_ / "", folder_ / ""}};
};

TEST_F(PosixSerialTest, EveryByteSurvivesBothWaysUnechoed) {
  std::string all;
  for (int i = 0; i < 256; ++i) all += static_cast<char>(i);
  const SerialHandle handle = openRaw();
  std::uint32_t count = 0;
  ASSERT_TRUE(serial_.write(handle, all, count));
  EXPECT_EQ(count, 256u);
  EXPECT_EQ(heard(), all);
  say(handle, all);
  EXPECT_EQ(heard(), "");
  char buffer[300];
  ASSERT_TRUE(serial_.read(handle, buffer, count));
  EXPECT_EQ(std::string(buffer, count), all);
  ASSERT_TRUE(serial_.read(handle, buffer, count));  // nothing waits: at once
  EXPECT_EQ(count, 0u);
}

TEST_F(PosixSerialTest, SettingsReachTheTerminal) {
  const SerialHandle handle = openRaw();
  termios seen{};
  ASSERT_EQ(::tcgetattr(far_, &seen), 0);
  EXPECT_EQ(::cfgetospeed(&seen), static_cast<speed_t>(B115200));
  EXPECT_EQ(seen.c_cflag & (CSIZE | PARENB | CSTOPB | CRTSCTS), static_cast<tcflag_t>(CS8));
  // There is no such speed, and a pseudo-terminal has no parity.
  for (const LineState& refused : {LineState{12345, 'N', 8, 1}, LineState{9600, 'E', 8, 1}}) {
    EXPECT_FALSE(serial_.setState(handle, refused));
    EXPECT_EQ(serial_.lastError(), EINVAL);
  }
}

TEST_F(PosixSerialTest, StaleAndZeroHandlesReachNothing) {
  const SerialHandle handle = openRaw();
  ASSERT_TRUE(serial_.close(handle));
  ASSERT_NE(serial_.open("COM3"), handle);
  std::uint32_t count = 0;
  for (const SerialHandle stale : {handle, 0, kInvalidHandle}) {
    EXPECT_FALSE(serial_.purge(stale) || serial_.setState(stale, kFast) || serial_.close(stale) ||
                 serial_.clearError(stale, count, count) || serial_.write(stale, "x", count));
    EXPECT_EQ(serial_.lastError(), EBADF);
  }
  EXPECT_EQ(heard(), "");
}

TEST_F(PosixSerialTest, HangUpIsAnErrorOfEveryCallButClose) {
  const SerialHandle handle = openRaw();
  hangUp();
  std::uint32_t flags = 0, count = 0;
  char buffer[8];
  const std::function<bool()> calls[] = {
      [&] { return serial_.clearError(handle, flags, count); },
      [&] { return serial_.read(handle, buffer, count); }, [&] { return serial_.write(handle, "gN", count); },
      [&] { return serial_.purge(handle); },
      [&] { return serial_.escapeFunction(handle, LineFunction::SetRts); }};
  for (const auto& call : calls) {
    EXPECT_FALSE(call());
    EXPECT_EQ(serial_.lastError(), EIO);
  }
  EXPECT_TRUE(serial_.close(handle));
}

TEST_F(PosixSerialTest, WriteIntoAFullQueueEndsInTimeWithATrueCount) {
  const SerialHandle handle = openRaw();
  ASSERT_TRUE(serial_.setTimeouts(handle, {0xFFFFFFFF, 0, 1000, 1000, 0}));
  const std::string much(1 << 20, 'x');
  std::uint32_t count = 0;
  const auto start = std::chrono::steady_clock::now();
  EXPECT_TRUE(serial_.write(handle, much, count));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(900));
  EXPECT_LT(count, much.size());
  EXPECT_EQ(heard().size(), count);
}

TEST_F(PosixSerialTest, PurgeDropsWhatWaitsAndMissingModemLinesAreSet) {
  const SerialHandle handle = openRaw();
  std::uint32_t flags = 0, queued = 1;
  say(handle, "stale");
  ASSERT_TRUE(serial_.purge(handle));
  ASSERT_TRUE(serial_.clearError(handle, flags, queued));
  EXPECT_EQ(queued, 0u);
  for (const auto function : {LineFunction::SetRts, LineFunction::ClearDtr, LineFunction::SetBreak})
    EXPECT_TRUE(serial_.escapeFunction(handle, function)) << static_cast<int>(function);
}

TEST_F(PosixSerialTest, RefusesWhatIsNoPort) {
  folder_.put("COM4", "");
  for (const auto& [name, error] : {std::pair{"COM4", ENOTTY}, {"COM6", ENOENT}, {"", ENOENT}}) {
    EXPECT_EQ(serial_.open(name), kInvalidHandle);
    EXPECT_EQ(serial_.lastError(), error) << name;
  }
}

}  // namespace
}  // namespace zephon
