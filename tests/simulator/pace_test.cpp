#include <gtest/gtest.h>

#include "simulator/bench_line.h"

namespace zephon::simulator {
namespace {

// Ten bits a byte both ways, and the answer time between them.
double expectedMs(int baud, std::size_t bytesThere, std::size_t bytesBack) {
  return static_cast<double>(bytesThere + bytesBack) * 10'000.0 / baud + 0.3;
}

struct PaceCase {
  Line line;
  std::string command;
  std::size_t replyBytes;
};

class Pace : public testing::TestWithParam<PaceCase> {};

TEST_P(Pace, LastByteComesWhenTheLineAllows) {
  const PaceCase& c = GetParam();
  BenchLine line(makeProfile(c.line));
  ASSERT_EQ(line.ask(c.command).size(), c.replyBytes);

  const double last = Millis(line.chunks.back().at).count();
  const double expected = expectedMs(line.baud, c.command.size(), c.replyBytes);
  EXPECT_GE(last, expected);
  EXPECT_LT(last, expected + 0.001);

  const auto firstBytes = line.chunks.front().bytes.size();
  const double first = Millis(line.chunks.front().at).count();
  EXPECT_GE(first, expectedMs(line.baud, c.command.size(), firstBytes));
  EXPECT_LE(static_cast<double>(firstBytes) * 10'000.0 / line.baud, 1.05);
}

INSTANTIATE_TEST_SUITE_P(Lines, Pace,
                         testing::Values(PaceCase{Line::Orvantis, "gN", 4},
                                         PaceCase{Line::Orvantis, "g9", 23},
                                         PaceCase{Line::Orvantis, "s4\x50", 2},
                                         PaceCase{Line::Tessara, "r", 4}, PaceCase{Line::Tessara, "+", 512}));

TEST(PaceTest, RepliesFollowEachOther) {
  BenchLine line;
  const std::string both = line.ask("gNgP");
  EXPECT_EQ(both, "1KD1ZEPHON SIM");
}

TEST(PaceTest, WithoutPaceTheReplyComesInTheNextPass) {
  Options fast;
  fast.paced = false;
  BenchLine line({}, fast);
  EXPECT_EQ(line.ask("gN", 0), "1KD1");
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
