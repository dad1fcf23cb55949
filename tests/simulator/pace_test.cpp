#include <gtest/gtest.h>

#include "simulator/bench_line.h"
#include "simulator/noise.h"

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

TEST(PaceTest, AnotherSpeedIsNoiseAndSpoilsTheHalfOfACommandBeforeIt) {
  BenchLine line;
  line.device.hear("g", 115200);
  line.idle(0.1);
  line.device.hear("N", 9600);
  line.idle(1);
  EXPECT_EQ(line.device.noise(), "gN");
  EXPECT_EQ(line.ask("N"), "");
  EXPECT_EQ(line.ask("gN"), "1KD1");
}

TEST(PaceTest, HalfACommandIsForgottenAfterAQuietSecond) {
  for (const auto& [pause, reply] : {std::pair{0.9, "OK"}, {1.1, ""}}) {
    BenchLine line;
    line.ask("s:ABC", 5);
    line.idle(pause);
    EXPECT_EQ(line.ask("DEFGHIJ"), reply) << pause;
    EXPECT_EQ(line.ask("gN"), "1KD1") << pause;
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
