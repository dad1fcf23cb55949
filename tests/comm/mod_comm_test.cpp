#include "comm/mod_comm.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <functional>

#include "comm/wait.h"
#include "platform/memory_line.h"
#include "platform/timer.h"
#include "platform/virtual_loop.h"

namespace zephon {
namespace {

constexpr char kSettings[] = "baud=9600 parity=N data=8 stop=1";
using Call = MemoryLine::Call;

struct SilentPeer : LinePeer {
  void hear(std::string_view bytes, int) override { heard += bytes; }
  void lineOpened(bool) override { heard.clear(); }
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
};

TEST_F(ModComm, OpenSetsUpTheLineAndCloseKeepsTheHandle) {
  ASSERT_EQ(open(), 0);
  EXPECT_EQ(entry().dcb, (LineState{9600, 'N', 8, 1}));
  for (const bool state : {true, false}) {
    for (const auto one : {kLineBreak, kLineRts}) EXPECT_EQ(CommSetLine(port_, 12, one, state), 0);
    const auto lines = line_.modemLines(12);
    EXPECT_TRUE(lines.sendsBreak == state && !lines.dtr && lines.rts == state);
  }
  const SerialHandle handle = entry().handle;
  for (int i = 0; i < 2; ++i) EXPECT_EQ(CommClose(port_, 12), 0);
  EXPECT_EQ(line_.closes(), 1);
  EXPECT_FALSE(entry().open);
  EXPECT_EQ(entry().handle, handle);
  EXPECT_EQ(CommFlush(port_, 12), EBADF);  // it asks the device about the old handle
  EXPECT_EQ(CommFlush(port_, 1), EBADF);   // and about one that never was
  expectError(EBADF, "CommFlush (PurgeComm)", "Bad file descriptor");
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
    EXPECT_FALSE(line_.isOpen(12)) << name;
  }
  EXPECT_EQ(CommOpen(port_, 13, "COM13", kSettings), ENOENT);
  EXPECT_FALSE(table_.ports[12].open);
  EXPECT_EQ(CommOpen(port_, 12, "COM12", "baud=fast"), EINVAL);
  expectError(EINVAL, "CommOpen (BuildCommDCB)", "Invalid argument");
}

TEST_F(ModComm, EachFailureOfAnOpenPortHasItsOwnSourceAndResult) {
  ASSERT_EQ(open(), 0);
  std::string out = "old";
  const std::string words = "Input/output error";
  const struct {
    Call call;
    std::function<std::int32_t()> fails;
    std::int32_t result;
    std::string source, message;
  } cases[] = {{Call::ClearError, [&] { return CommRead(port_, 12, out, 100); }, -1,
                "CommRead (ClearCommError)", words},
               {Call::Read, [&] { return CommRead(port_, 12, out, 100); }, -1, "CommRead (ReadFile)",
                words + "  COMM Error Flags = 0"},
               {Call::Write, [&] { return CommWrite(port_, 12, "gN"); }, -1, "CommWrite (WriteFile)",
                words + "  COMM Error Flags = 1A"},
               {Call::Purge, [&] { return CommFlush(port_, 12); }, EIO, "CommFlush (PurgeComm)", words},
               {Call::EscapeFunction, [&] { return CommSetLine(port_, 12, kLineDtr, true); }, EIO,
                "CommSetLine (EscapeCommFunction)", words},
               {Call::Close, [&] { return CommClose(port_, 12); }, EIO, "CommClose (CloseHandle)", words}};
  peer_.say("waits", 9600);
  for (const auto& one : cases) {
    if (one.call == Call::Write) line_.raiseFlags(0x1A);
    line_.failNext(one.call, EIO);
    EXPECT_EQ(one.fails(), one.result) << one.source;
    expectError(EIO, one.source, one.message);
    EXPECT_EQ(out, "");
    EXPECT_TRUE(entry().open);
  }
}

TEST_F(ModComm, WriteTellsItsOwnErrorOrTheCountWithoutOne) {
  ASSERT_EQ(open(), 0);
  line_.failNext(Call::Write, 0);
  EXPECT_EQ(CommWrite(port_, 12, "gN"), 0);
  EXPECT_EQ(loop_.passes, 1);
  EXPECT_EQ(table_.lastCommError.code, 0);
  line_.failNext(Call::Write, EIO);
  line_.failNext(Call::Purge, EBUSY);
  loop_.callAt(Instant{0}, [&] { CommFlush(port_, 12); });  // fails inside the write
  EXPECT_EQ(CommWrite(port_, 12, "gN"), -1);
  EXPECT_EQ(table_.lastCommError.code, EIO);
}

TEST_F(ModComm, WriteRunsElevenPassesAndReadOne) {
  ASSERT_EQ(open(), 0);
  loop_.passes = 0;
  EXPECT_EQ(CommWrite(port_, 12, "gN"), 2);
  EXPECT_EQ(loop_.passes, 11);
  EXPECT_EQ(peer_.heard, "gN");
  line_.shortenNextWrite(1);
  EXPECT_EQ(CommWrite(port_, 12, "gN"), 1);
  loop_.passes = 0;
  std::string out;
  EXPECT_EQ(CommRead(port_, 12, out, 100), 0);
  EXPECT_EQ(loop_.passes, 1);
}

TEST_F(ModComm, ReadTakesTheWholeQueueUpToTheBuffer) {
  ASSERT_EQ(open(), 0);
  std::string all(2500, '\0');
  for (std::size_t i = 0; i < all.size(); ++i) all[i] = static_cast<char>(i);
  std::string out = "old";
  peer_.say(all, 9600);
  EXPECT_EQ(CommRead(port_, 12, out, 8196), 1024);
  EXPECT_EQ(CommRead(port_, 12, out, 100), 1024);
  EXPECT_EQ(CommRead(port_, 12, out, 100), 452);
  EXPECT_EQ(out, all.substr(2048));
  EXPECT_EQ(CommRead(port_, 12, out, 100), 0);
  EXPECT_EQ(out, "");
}

TEST_F(ModComm, PortIdsOutsideTheTableAreARunTimeFailure) {
  std::string out = "old";
  const std::pair<const char*, std::function<std::int32_t(std::int16_t)>> calls[] = {
      {"CommOpen", [&](std::int16_t id) { return CommOpen(port_, id, "COM1", kSettings); }},
      {"CommClose", [&](std::int16_t id) { return CommClose(port_, id); }},
      {"CommFlush", [&](std::int16_t id) { return CommFlush(port_, id); }},
      {"CommRead", [&](std::int16_t id) { return CommRead(port_, id, out, 100); }},
      {"CommWrite", [&](std::int16_t id) { return CommWrite(port_, id, "r"); }},
      {"CommSetLine", [&](std::int16_t id) { return CommSetLine(port_, id, kLineDtr, true); }}};
  for (const int id : {0, -1, 257, -32768, 32767}) {
    for (const auto& [source, call] : calls) {
      EXPECT_EQ(call(static_cast<std::int16_t>(id)), 9) << source;
      expectError(9, source, "Subscript out of range");
    }
  }
  EXPECT_EQ(out, "");
  EXPECT_EQ(line_.opens(), 0);
}

TEST(Wait, RunsTheLoopAtLeastOnceAndUntilTheEnd) {
  VirtualLoop loop;
  bool ending = false;
  int ticks = 0;
  Timer timer(loop);
  timer.onTick = [&] { ++ticks; };
  timer.setInterval(10);
  timer.setEnabled(true);
  bool served = false;
  loop.callAt(Instant{0}, [&] { served = true; });
  wait(loop, ending, 0);
  EXPECT_TRUE(served);
  EXPECT_EQ(loop.now(), Instant{0});
  wait(loop, ending, 45);
  EXPECT_EQ(loop.now(), fromMillis(45));
  EXPECT_EQ(ticks, 4);
  loop.callAt(fromMillis(60), [&] { ending = true; });
  wait(loop, ending, 1e300);
  EXPECT_EQ(loop.now(), fromMillis(60));
}

}  // namespace
}  // namespace zephon
