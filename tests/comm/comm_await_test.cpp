#include <gtest/gtest.h>
#include <pty.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <thread>

#include "comm/mod_comm.h"
#include "platform/poll_loop.h"
#include "platform/posix_serial.h"
#include "support/temp_folder.h"

namespace zephon {
namespace {

// A reader that waits on a real terminal sleeps until a byte is there, and does not spin once the far end is
// gone.
TEST(CommAwait, WakesForAByteAndSleepsOnALineThatHungUp) {
  TempFolder folder;
  int far = -1;
  int near = -1;
  ASSERT_EQ(::openpty(&far, &near, nullptr, nullptr, nullptr), 0);
  std::filesystem::create_symlink(::ttyname(near), folder / "COM7");
  ::close(near);
  PortTable table;
  PosixSerial serial(PortFolders{folder / "", folder / ""});
  PollLoop loop;
  const Port port{table, serial, loop};
  ASSERT_EQ(CommOpen(port, 7, "COM7", "baud=115200 parity=N data=8 stop=1"), 0);

  std::thread device([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_EQ(::write(far, "OK", 2), 2);
  });
  EXPECT_EQ(CommAwait(port, 7), Woke::Readable);
  device.join();
  std::string reply;
  EXPECT_EQ(CommRead(port, 7, reply, 100), 2);
  EXPECT_EQ(reply, "OK");

  std::thread unplug([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    ::close(far);
  });
  for (int i = 0; i < 2; ++i) {  // gone while it sleeps, and gone before
    const Instant deadline = loop.now() + fromMillis(60);
    EXPECT_EQ(CommAwait(port, 7, deadline), Woke::Deadline);
    EXPECT_GE(loop.now(), deadline);
  }
  unplug.join();
  EXPECT_EQ(CommRead(port, 7, reply, 100), -1);
  EXPECT_EQ(table.lastCommError.source, "CommRead (ClearCommError)");
  EXPECT_EQ(CommClose(port, 7), 0);
}

}  // namespace
}  // namespace zephon
