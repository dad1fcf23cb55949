#include <gtest/gtest.h>

#include "simulator/bench_line.h"
#include "simulator/noise.h"

namespace zephon::simulator {
namespace {

// Ten bits a byte both ways, and the answer time between them.
double expectedMs(int baud, std::size_t bytesThere, std::size_t bytesBack) {
  return static_cast<double>(bytesThere + bytesBack) * 10'000.0 / baud + 0.3;
}

TEST(PaceTest, TheLastByteComesWhenTheLineAllows) {
  struct {
    Line line;
    std::string command;
    std::size_t replyBytes;
  } const rows[] = {{Line::Orvantis, "gN", 4},
                    {Line::Orvantis, "s4P", 2},
                    {Line::Orvantis, "gD", 110599},
                    {Line::Tessara, "+", 512}};
  for (const auto& row : rows) {
    BenchLine line(makeProfile(row.line));
    ASSERT_EQ(line.ask(row.command, 10'000).size(), row.replyBytes);
    const double last = Millis(line.chunks.back().at).count();
    const double expected = expectedMs(line.baud, row.command.size(), row.replyBytes);
    EXPECT_GE(last, expected) << row.command;
    EXPECT_LT(last, expected + 0.001) << row.command;

    const auto firstBytes = static_cast<double>(line.chunks.front().bytes.size());
    EXPECT_LE(firstBytes * 10'000.0 / line.baud, 1.05) << row.command;
  }
}

TEST(PaceTest, AnotherSpeedIsNoise) {
  BenchLine line;
  line.device.hear("gN", 9600);
  line.idle(1);
  EXPECT_TRUE(line.device.sent().empty());
  EXPECT_EQ(line.device.noise(), "gN");

  // It also spoils the half of a command that was heard before it.
  line.device.hear("g", 115200);
  line.idle(0.1);
  line.device.hear("x", 9600);
  EXPECT_EQ(line.ask("N"), "");
  EXPECT_EQ(line.ask("gN"), "1KD1");
}

TEST(PaceTest, HalfACommandIsForgottenAfterAQuietSecond) {
  struct {
    double pause;
    std::string reply;
  } const cases[] = {{0.9, "OK"}, {1.1, ""}};
  for (const auto& c : cases) {
    BenchLine line;
    line.ask("s:ABC", 5);
    line.idle(c.pause);
    EXPECT_EQ(line.ask("DEFGHIJ"), c.reply) << c.pause;
    EXPECT_EQ(line.ask("gN"), "1KD1") << c.pause;
  }
}

TEST(PaceTest, AnyBytesLeaveADeviceThatAnswers) {
  for (const Line kind : {Line::Orvantis, Line::Tessara}) {
    BenchLine line(makeProfile(kind));
    for (std::int64_t i = 0; i < 20'000; ++i) {
      // Half of them are such as may call something.
      const double pick = chance(5, 0, i);
      const char byte =
          i % 2 == 0 ? "gs:;49>=?@YNabnv+"[static_cast<int>(pick * 17)] : static_cast<char>(pick * 256);
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
  EXPECT_EQ(line.ask("r"), "2.00");

  line.device.hear("r", 9600);
  line.idle(0.0030);  // the command, the answer time and one byte of the reply have passed
  line.device.linePurged();
  line.chunks.clear();
  EXPECT_EQ(line.ask(""), ".00");
}

}  // namespace
}  // namespace zephon::simulator
