#include <gtest/gtest.h>

#include "simulator/bench_line.h"

namespace zephon::simulator {
namespace {

TEST(FaultTest, EachKindSpoilsTheReplyInItsWay) {
  struct {
    std::string fault, command, first, second;
  } const rows[] = {
      {"silent:count=1", "gN", "", "1KD1"},
      {"silent:count=1,only=gO", "gN", "1KD1", "1KD1"},
      {"short", "gN", "1KD", "1KD"},
      {"short:amount=9,count=1", "gN", "", "1KD1"},
      {"stray:amount=2,count=1", "gN", "UU1KD1", "1KD1"},
      {"garbage:count=1", "gV", "\xED", "x"},
      {"doubled:count=1", "gN", "11KKDD11", "1KD1"},
      {"refuse", "gV", "x", "x"},
      {"refuse:count=1", "s4P", "", "OK"},
      {"cut:amount=2", "gN", "1K", ""},
      {"stray:at=3,count=1", "gN", "1KDUUU1", "1KD1"},
      {"stall:amount=0,count=1", "gN", "1K", "1KD1"},
      {"stall:amount=0,at=3", "gN", "1KD", "1KD"},
      {"corrupt:at=1,count=1", "gN",
       "1\xDE"
       "D1",
       "1KD1"},
      {"corrupt:at=3,amount=9", "gN", "1KD\xA4", "1KD\xA4"},
      {"corrupt:amount=2,count=1", "gP", "ZE\xC5HON \xC6IM", "ZEPHON SIM"},
      {"silent:after=1.5,for=2", "gN", "1KD1", ""},
      {"silent:for=0.5", "gN", "", "1KD1"},
  };
  for (const auto& row : rows) {
    BenchLine line({}, quiet());
    const auto fault = parseFault(row.fault);
    ASSERT_TRUE(fault) << row.fault;
    line.device.addFault(*fault);
    EXPECT_EQ(line.ask(row.command, 2000), row.first) << row.fault;
    EXPECT_EQ(line.device.lastReply(), row.first) << row.fault;
    EXPECT_EQ(line.ask(row.command, 2000), row.second) << row.fault;
    line.device.clearFaults();
    EXPECT_EQ(line.ask("gN"), "1KD1") << row.fault;
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

TEST(FaultTest, AStallIsAPauseInTheMiddle) {
  BenchLine line({}, quiet());
  const std::string whole = line.ask("gD", 12'000);
  line.device.addFault(*parseFault("stall:at=70000,amount=2500"));
  line.device.addFault(*parseFault("late:amount=100"));
  const Instant asked = line.loop.now();
  const std::string stalled = line.ask("gD", 15'000);
  EXPECT_EQ(stalled.substr(19), whole.substr(19));
  std::size_t told = 0;
  Instant last = asked;
  for (const BenchLine::Chunk& chunk : line.chunks) {
    const double pause = Millis(chunk.at - last).count();
    EXPECT_EQ(pause > 2000, told == 70'000) << told;
    told += chunk.bytes.size();
    last = chunk.at;
  }
  const double span = Millis(last - asked).count();
  EXPECT_NEAR(span, 110601 * 10'000.0 / 115200 + 2600.3, 0.01);
}

TEST(FaultTest, StrikesFarInsideALog) {
  BenchLine clean({}, quiet());
  const std::string whole = clean.ask("gE");
  struct {
    std::string fault;
    std::size_t length, intact;  // bytes of the reply, and how many of them are right from its start
  } const rows[] = {{"short:amount=8000", 196, 196},
                    {"cut:amount=8195", 8195, 8195},
                    {"corrupt:at=4100,amount=3000", 8196, 4100},
                    {"corrupt:amount=4", 8196, 1024},
                    {"stray:at=8000,amount=5000", 13196, 8000}};
  for (const auto& row : rows) {
    BenchLine line({}, quiet());
    line.device.addFault(*parseFault(row.fault));
    const std::string said = line.ask("gE", 2000);
    EXPECT_EQ(said.size(), row.length) << row.fault;
    const auto [right, wrong] = std::mismatch(whole.begin(), whole.end(), said.begin(), said.end());
    EXPECT_EQ(static_cast<std::size_t>(right - whole.begin()), row.intact) << row.fault;
  }
}

TEST(FaultTest, SilentAndRefusedWritesChangeNothing) {
  struct {
    Line line;
    std::string fault, write, said, read, still;
  } const rows[] = {
      {Line::Orvantis, "silent", "s4Z", "", "gH", "P"}, {Line::Orvantis, "refuse", "s4Z", "", "gH", "P"},
      {Line::Orvantis, "refuse", "s1", "", "gQ", "1"},  {Line::Tessara, "silent", "a2", "", "+", "1"},
      {Line::Tessara, "refuse", "a2", "3", "+", "1"},   {Line::Tessara, "refuse", "o", "", "s", "On"},
  };
  for (const auto& row : rows) {
    BenchLine line(makeProfile(row.line), quiet());
    line.device.addFault(*parseFault(row.fault));
    EXPECT_EQ(line.ask(row.write), row.said) << row.fault << " " << row.write;
    EXPECT_EQ(line.device.heard().back().command + line.device.heard().back().data, row.write);
    line.device.clearFaults();
    std::string reply = line.ask(row.read);
    if (row.read == "+") reply = reply.substr(510, 1);
    EXPECT_EQ(reply, row.still) << row.fault << " " << row.write;
  }
}

TEST(FaultTest, ADeadLineForgetsWhatWasOnIt) {
  BenchLine line(makeProfile(Line::Tessara), quiet());
  line.device.hear("+", 9600);
  line.idle(0.1);
  line.device.cutLine();
  const std::size_t before = line.chunks.size();
  line.device.hear("r", 9600);
  line.idle(1);
  EXPECT_EQ(line.chunks.size(), before);
  line.device.restoreLine();
  EXPECT_EQ(line.ask("r"), "2.00");
}

}  // namespace
}  // namespace zephon::simulator
