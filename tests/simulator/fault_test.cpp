#include <gtest/gtest.h>

#include "simulator/bench_line.h"

namespace zephon::simulator {
namespace {

TEST(FaultTest, EachKindSpoilsTheReplyInItsWay) {
  const std::array<std::string, 4> rows[] = {
      {"silent:count=1", "gN", "", "1KD1"},
      {"silent:count=1,only=gO", "gN", "1KD1", "1KD1"},
      {"short", "gN", "1KD", "1KD"},
      {"stray:amount=2,count=1", "gN", "UU1KD1", "1KD1"},
      {"garbage:count=1", "gV", "\xED", "x"},
      {"doubled:count=1", "gN", "11KKDD11", "1KD1"},
      {"refuse", "gV", "x", "x"},
      {"refuse:count=1", "s4P", "", "OK"},
      {"cut:amount=2", "gN", "1K", ""},
      {"stray:at=3,count=1", "gN", "1KDUUU1", "1KD1"},
      {"stall:amount=0,count=1", "gN", "1K", "1KD1"},
      {"stall:amount=0,at=3", "gN", "1KD", "1KD"},
      {"corrupt:at=3,amount=9", "gN", "1KD\xA4", "1KD\xA4"},
      {"corrupt:amount=2,count=1", "gP", "ZE\xC5HON \xC6IM", "ZEPHON SIM"},
      {"silent:after=1.5,for=2", "gN", "1KD1", ""},
      {"silent:for=0.5", "gN", "", "1KD1"},
  };
  for (const auto& [text, command, first, second] : rows) {
    SCOPED_TRACE(text);
    BenchLine line({}, quiet());
    const auto fault = parseFault(text);
    ASSERT_TRUE(fault);
    line.device.addFault(*fault);
    EXPECT_EQ(line.ask(command, 2000), first);
    EXPECT_EQ(line.ask(command, 2000), second);
    line.device.clearFaults();
    EXPECT_EQ(line.ask("gN"), "1KD1");
  }
}

TEST(FaultTest, BadTextsAreNoFaults) {
  for (const std::string text :
       {"", "loud", "short:", "short:amount", "short:amount=", "short:amount=x", "short:amount=-1",
        "short:amount=1x", "stray:amount=1000001", "late:ms=3", "silent:only=", "silent:for=nan", "Silent"}) {
    EXPECT_FALSE(parseFault(text)) << text;
  }
}

TEST(FaultTest, ALateReplyComesWholeAfterItsTime) {
  BenchLine line;
  line.device.addFault(*parseFault("late:amount=150,count=1"));
  EXPECT_EQ(line.ask("gN", 150), "");
  line.device.linePurged();  // the far end has given up, the device has not
  EXPECT_EQ(line.ask("gO", 100).substr(0, 4), "1KD1");
}

}  // namespace
}  // namespace zephon::simulator
