#include "comm/mod_comm.h"

#include <gtest/gtest.h>
#include <pty.h>
#include <unistd.h>

#include <cerrno>
#include <functional>
#include <thread>

#include "platform/memory_line.h"
#include "platform/poll_loop.h"
#include "platform/posix_serial.h"
#include "platform/virtual_loop.h"
#include "support/temp_folder.h"

namespace zephon {
namespace {

constexpr char kSettings[] = "baud=9600 parity=N data=8 stop=1";
using Call = MemoryLine::Call;

struct SilentPeer : LinePeer {
  void hear(std::string_view bytes, int) override { heard += bytes; }
  std::string heard;
};

struct CountingLoop : VirtualLoop {
  void runOnce() override {
    ++passes;
    VirtualLoop::runOnce();
  }
  int passes = 0;
};

class ModComm : public testing::Test {
 protected:
  ModComm() { line_.attach(&peer_, 12); }
  std::int32_t open() { return CommOpen(port_, 12, "COM12", kSettings); }
  std::int32_t read() { return CommRead(port_, 12, out_, 100); }
  std::int32_t write() { return CommWrite(port_, 12, "gN"); }
  PortRecord& entry() { return table_.ports[11]; }
  void expectError(std::int32_t code, const std::string& source, const std::string& message) {
    std::string text;
    EXPECT_EQ(CommGetError(table_, text), code);
    EXPECT_EQ(text, "Error (" + std::to_string(code) + "): " + source + " - " + message);
  }

  CountingLoop loop_;
  MemoryLine line_{loop_};
  SilentPeer peer_;
  PortTable table_;
  Port port_{table_, line_, loop_};
  std::string out_ = "old";
};

TEST_F(ModComm, OpenSetsUpTheLineAndCloseEndsItOnce) {
  ASSERT_EQ(open(), 0);
  EXPECT_EQ(entry().dcb, (LineState{9600, 'N', 8, 1}));
  for (const bool state : {true, false}) {
    for (const auto one : {kLineBreak, kLineRts}) EXPECT_EQ(CommSetLine(port_, 12, one, state), 0);
    const auto lines = line_.modemLines(12);
    EXPECT_TRUE(lines.sendsBreak == state && !lines.dtr && lines.rts == state);
  }
  for (int i = 0; i < 2; ++i) EXPECT_EQ(CommClose(port_, 12), 0);
  EXPECT_TRUE(line_.closes() == 1 && !entry().open);
}

TEST_F(ModComm, EachStepOfOpenHasItsOwnSourceAndRollsNothingBack) {
  const std::pair<Call, const char*> steps[] = {
      {Call::Open, "CreateFile"},       {Call::Setup, "SetupComm"},
      {Call::Purge, "PurgeComm"},       {Call::SetTimeouts, "SetCommTimeouts"},
      {Call::GetState, "GetCommState"}, {Call::BuildState, "BuildCommDCB"},
      {Call::SetState, "SetCommState"}};
  for (const auto& [call, name] : steps) {
    line_.failNext(call, EPERM);
    EXPECT_EQ(open(), EPERM);
    expectError(EPERM, std::string("CommOpen (") + name + ")", "Operation not permitted");
    EXPECT_EQ(entry().open, call != Call::Open) << name;
    if (entry().open) {
      EXPECT_EQ(open(), -1);
      expectError(-1, "CommOpen", "Port in use.");
    }
    EXPECT_EQ(CommClose(port_, 12), 0);
  }
}

TEST_F(ModComm, EachFailureOfAnOpenPortHasItsOwnSourceAndResult) {
  ASSERT_EQ(open(), 0);
  const std::string words = "Input/output error";
  const std::tuple<Call, std::function<std::int32_t()>, std::int32_t, std::string, std::string> cases[] = {
      {Call::ClearError, [&] { return read(); }, -1, "CommRead (ClearCommError)", words},
      {Call::Read, [&] { return read(); }, -1, "CommRead (ReadFile)", words + "  COMM Error Flags = 0"},
      {Call::Write, [&] { return write(); }, -1, "CommWrite (WriteFile)", words + "  COMM Error Flags = 1A"},
      {Call::Purge, [&] { return CommFlush(port_, 12); }, EIO, "CommFlush (PurgeComm)", words},
      {Call::EscapeFunction, [&] { return CommSetLine(port_, 12, kLineDtr, true); }, EIO,
       "CommSetLine (EscapeCommFunction)", words},
      {Call::Close, [&] { return CommClose(port_, 12); }, EIO, "CommClose (CloseHandle)", words}};
  peer_.say("waits", 9600);
  for (const auto& [call, fails, result, source, message] : cases) {
    if (call == Call::Write) line_.raiseFlags(0x1A);
    line_.failNext(call, EIO);
    EXPECT_EQ(fails(), result) << source;
    expectError(EIO, source, message);
    EXPECT_TRUE(out_.empty() && entry().open);
  }
}

TEST_F(ModComm, WriteRunsElevenPassesAndTellsItsCountOrItsOwnError) {
  ASSERT_EQ(open(), 0);
  loop_.passes = 0;
  EXPECT_EQ(write(), 2);
  EXPECT_EQ(loop_.passes, 11);
  EXPECT_EQ(peer_.heard, "gN");
  line_.shortenNextWrite(1);
  EXPECT_EQ(write(), 1);
  line_.failNext(Call::Write, EIO);
  line_.failNext(Call::Purge, EBUSY);
  loop_.callAt(Instant{0}, [&] { CommFlush(port_, 12); });  // fails inside the write
  EXPECT_EQ(write(), -1);
  EXPECT_EQ(table_.lastCommError.code, EIO);
}

TEST_F(ModComm, ReadTakesTheWholeQueueUpToTheBufferInOnePass) {
  ASSERT_EQ(open(), 0);
  std::string all(2500, '\0');
  for (std::size_t i = 0; i < all.size(); ++i) all[i] = static_cast<char>(i);
  peer_.say(all, 9600);
  EXPECT_EQ(CommRead(port_, 12, out_, 8196), 1024);
  EXPECT_EQ(read(), 1024);
  EXPECT_EQ(read(), 452);
  EXPECT_EQ(out_, all.substr(2048));
}

TEST_F(ModComm, PortIdsOutsideTheTableAreARunTimeFailure) {
  EXPECT_EQ(CommOpen(port_, 0, "COM0", kSettings), 9);
  expectError(9, "CommOpen", "Subscript out of range");
  EXPECT_EQ(CommRead(port_, 257, out_, 100), 9);
  EXPECT_EQ(CommWrite(port_, -32768, "r"), 9);
}

// On a real terminal; a reader does not spin once the far end is gone.
TEST(CommAwait, WakesForAByteAndSleepsOnALineThatHungUp) {
  TempFolder folder;
  int far = -1, near = -1;
  ASSERT_EQ(::openpty(&far, &near, nullptr, nullptr, nullptr), 0);
  std::filesystem::create_symlink(::ttyname(near), folder / "COM7");
  ::close(near);
  PortTable table;
  PosixSerial serial(PortFolders{folder / "", folder / ""});
  PollLoop loop;
  const Port port{table, serial, loop};
  ASSERT_EQ(CommOpen(port, 7, "COM7", "baud=115200 parity=N data=8 stop=1"), 0);

  std::thread device([&] {
    ::usleep(20'000);
    EXPECT_EQ(::write(far, "OK", 2), 2);
  });
  EXPECT_EQ(CommAwait(port, 7), Woke::Readable);
  device.join();
  std::string reply;
  EXPECT_EQ(CommRead(port, 7, reply, 100), 2);
  EXPECT_EQ(reply, "OK");

  std::thread unplug([&] {
    ::usleep(20'000);
    ::close(far);
  });
  for (int i = 0; i < 2; ++i)  // gone while it sleeps, and gone before
    EXPECT_EQ(CommAwait(port, 7, loop.now() + fromMillis(60)), Woke::Deadline);
  unplug.join();
  EXPECT_EQ(CommRead(port, 7, reply, 100), -1);
}

}  // namespace
}  // namespace zephon
