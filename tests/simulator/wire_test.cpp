#include <gtest/gtest.h>

#include "simulator/bench_line.h"
#include "simulator/noise.h"

// The pace of the line, and what can go wrong on it.

namespace zephon::simulator {
namespace {

TEST(PaceTest, TheLastByteComesWhenTheLineAllows) {
  const std::tuple<Line, std::string, std::size_t> rows[] = {
      {Line::Orvantis, "s4P", 2}, {Line::Orvantis, "gD", 110599}, {Line::Tessara, "+", 512}};
  for (const auto& [kind, command, replyBytes] : rows) {
    BenchLine line(makeProfile(kind));
    ASSERT_EQ(line.ask(command, 10'000).size(), replyBytes);
    // Ten bits a byte both ways, and the answer time between them.
    const double byteMs = 10'000.0 / line.baud;
    const double expected = static_cast<double>(command.size() + replyBytes) * byteMs + 0.3;
    EXPECT_NEAR(Millis(line.chunks.back().at).count(), expected, 0.001) << command;
    EXPECT_LE(static_cast<double>(line.chunks.front().bytes.size()) * byteMs, 1.05) << command;
  }
}

TEST(PaceTest, AnyBytesLeaveADeviceThatAnswers) {
  for (const Line kind : {Line::Orvantis, Line::Tessara}) {
    BenchLine line(makeProfile(kind));
    for (std::int64_t i = 0; i < 20'000; ++i) {
      const double pick = chance(5, 0, i);
      const char byte = i % 2 == 0 ? "gs:;49>=?@YNabnv+"[int(pick * 17)] : static_cast<char>(pick * 256);
      line.device.hear(std::string(1, byte), line.baud);
    }
    line.idle(600);
    EXPECT_EQ(line.ask(kind == Line::Orvantis ? "gN" : "r"), line.device.profile().firmware);
    EXPECT_GT(line.device.heard().size(), 100u);
  }
}

TEST(PaceTest, APurgeLosesWhatIsOnItsWayAndNotTheRestOfTheReply) {
  BenchLine line(makeProfile(Line::Tessara));
  line.device.hear("i", 9600);
  line.device.linePurged();  // before the command has left
  line.device.hear("r", 9600);
  line.idle(0.0030);  // the command, the answer time and one byte of the reply have passed
  line.device.linePurged();
  line.chunks.clear();
  EXPECT_EQ(line.ask(""), ".00");
}

TEST(FaultTest, EachKindSpoilsTheReplyInItsWay) {
  const std::array<std::string, 4> rows[] = {
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
      {"corrupt:amount=2,count=1", "gP", "ZE\xC5HON \xC6IM", "ZEPHON SIM"},
      {"silent:after=1.5,for=2", "gN", "1KD1", ""}};
  for (const auto& [text, command, first, second] : rows) {
    SCOPED_TRACE(text);
    BenchLine line({}, quiet());
    line.device.addFault(parseFault(text).value());
    EXPECT_EQ(line.ask(command, 2000), first);
    EXPECT_EQ(line.ask(command, 2000), second);
    line.device.clearFaults();
    EXPECT_EQ(line.ask("gN"), "1KD1");
  }
}

}  // namespace
}  // namespace zephon::simulator
