#include "platform/memory_line.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "platform/virtual_loop.h"

namespace zephon {
namespace {

struct Echo : LinePeer {
  void hear(std::string_view bytes, int baud) override { say(bytes, baud); }
};

class MemoryLineTest : public testing::Test {
 protected:
  void say(std::string_view bytes) { echo_.say(bytes, 9600); }
  std::string read() {
    char buffer[64];
    std::uint32_t count = 0;
    EXPECT_TRUE(line_.read(handle_, buffer, count));
    return {buffer, count};
  }
  SerialHandle open() {
    line_.attach(&echo_, 1);
    return line_.open("COM1");
  }

  VirtualLoop loop_;
  MemoryLine line_{loop_};
  Echo echo_;
  SerialHandle handle_ = open();
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
  ASSERT_TRUE(line_.purge(handle_));
  EXPECT_EQ(read(), "");
  loop_.advance(fromMillis(50));
  EXPECT_EQ(read(), "12");
  say("3");
  ASSERT_TRUE(line_.purge(handle_));
  EXPECT_EQ(read(), "");
}

TEST_F(MemoryLineTest, APulledCableLosesWhatItCarriesAndFailsUntilClosed) {
  std::uint32_t count = 0;
  line_.delayArrivals(10);
  ASSERT_TRUE(line_.setState(handle_, {115200, 'N', 8, 1}));
  ASSERT_TRUE(line_.write(handle_, "late", count));
  EXPECT_EQ(line_.written().at(0).baud, 115200);
  EXPECT_EQ(line_.open("COM1"), kInvalidHandle);
  EXPECT_EQ(line_.lastError(), EBUSY);
  line_.detach(1);
  EXPECT_FALSE(line_.write(handle_, "x", count));
  EXPECT_EQ(line_.lastError(), EIO);
  const SerialHandle old = handle_;
  handle_ = open();
  say("9600");
  loop_.advance(fromMillis(20));
  EXPECT_EQ(read(), "9600");
  EXPECT_TRUE(line_.close(old));
  EXPECT_EQ(line_.strayCalls(), 0);
  EXPECT_FALSE(line_.write(old, "x", count));
  EXPECT_EQ(line_.strayCalls(), 1);
  EXPECT_EQ(line_.lastError(), EBADF);
}

}  // namespace
}  // namespace zephon
