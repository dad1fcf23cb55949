#include "platform/memory_line.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "platform/virtual_loop.h"

namespace zephon {
namespace {

struct Echo : LinePeer {
  void hear(std::string_view bytes, int baud) override { say(bytes, baud); }
  void lineOpened(bool open) override { opened = open; }
  bool opened = false;
};

class MemoryLineTest : public testing::Test {
 protected:
  MemoryLineTest() {
    line_.attach(&echo_, 1);
    handle_ = line_.open("COM1");
  }
  void say(std::string_view bytes) { echo_.say(bytes, 9600); }
  std::string read() {
    char buffer[64];
    std::uint32_t count = 0;
    EXPECT_TRUE(line_.read(handle_, buffer, count));
    return {buffer, count};
  }

  VirtualLoop loop_;
  MemoryLine line_{loop_};
  Echo echo_;
  SerialHandle handle_ = kInvalidHandle;
};

TEST_F(MemoryLineTest, LosesDoublesAndDelaysBytesInOrder) {
  line_.dropNext(2);
  line_.doubleNext(1);
  say("a");
  say("bcd");
  EXPECT_EQ(read(), "ccd");
  line_.delayArrivals(50);
  say("1");
  line_.delayArrivals(0);
  say("2");  // may not overtake
  EXPECT_EQ(read(), "");
  ASSERT_TRUE(line_.purge(handle_));
  loop_.advance(fromMillis(50));
  EXPECT_EQ(read(), "12");
  say("3");
  EXPECT_EQ(read(), "3");
  say("4");
  ASSERT_TRUE(line_.purge(handle_));
  EXPECT_EQ(read(), "");
}

TEST_F(MemoryLineTest, HearsOnlyItsOwnSpeedAndRecordsWhatItWrote) {
  std::uint32_t count = 0;
  loop_.advance(fromMillis(7));
  ASSERT_TRUE(line_.setState(handle_, {115200, 'N', 8, 1}));
  say("wrong speed");
  ASSERT_TRUE(line_.write(handle_, "gN", count));
  EXPECT_EQ(read(), "gN");
  ASSERT_EQ(line_.written().size(), 1u);
  EXPECT_EQ(line_.written()[0].at, fromMillis(7));
  EXPECT_EQ(line_.written()[0].baud, 115200);
}

TEST_F(MemoryLineTest, APulledCableFailsAndAClosedPortCountsStrayCalls) {
  std::uint32_t count = 0;
  line_.delayArrivals(10);
  say("late");
  EXPECT_EQ(line_.open("COM1"), kInvalidHandle);
  EXPECT_EQ(line_.lastError(), EBUSY);
  line_.detach(1);
  EXPECT_FALSE(echo_.opened);
  EXPECT_FALSE(line_.write(handle_, "x", count));
  EXPECT_EQ(line_.lastError(), EIO);
  EXPECT_EQ(line_.open("COM1"), kInvalidHandle);
  EXPECT_EQ(line_.lastError(), ENOENT);
  line_.attach(&echo_, 1);
  const SerialHandle old = handle_;
  handle_ = line_.open("COM1");
  loop_.advance(fromMillis(20));
  EXPECT_EQ(read(), "");  // what the old cable carried is lost
  EXPECT_TRUE(line_.close(old));
  EXPECT_EQ(line_.strayCalls(), 0);
  EXPECT_FALSE(line_.write(old, "x", count));
  EXPECT_EQ(line_.strayCalls(), 1);
  EXPECT_EQ(line_.lastError(), EBADF);
}

}  // namespace
}  // namespace zephon
