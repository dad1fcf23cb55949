#include <gtest/gtest.h>

#include "simulator/bench_line.h"

namespace zephon::simulator {
namespace {

TEST(Outlets, FollowTheirCommandsOnBothLines) {
  struct {
    Line line;
    std::string read, off, on, cycle, saidOff, saidOn, saidCycling;
  } const rows[] = {{Line::Orvantis, "gQ", "s1", "s2", "s3", "0", "1", "C"},
                    {Line::Tessara, "s", "o", "O", "c", "Of", "On", "Cy"}};
  for (const auto& row : rows) {
    BenchLine line(makeProfile(row.line), quiet());
    EXPECT_EQ(line.ask(row.read), row.saidOn);
    line.ask(row.off);
    EXPECT_EQ(line.ask(row.read), row.saidOff);
    EXPECT_EQ(line.device.truth().amps, 0.0);
    line.ask(row.on);
    EXPECT_EQ(line.ask(row.read), row.saidOn);
    EXPECT_GT(line.device.truth().amps, 0.0);
    line.ask(row.cycle);
    line.idle(7);
    EXPECT_EQ(line.ask(row.read), row.saidCycling);
    EXPECT_EQ(line.device.truth().watts, 0.0);
    line.idle(2);
    EXPECT_EQ(line.ask(row.read), row.saidOn);
  }
}

TEST(Outlets, ShowForcedFaults) {
  struct {
    char letter;
    std::string secondLine;
  } const rows[] = {{'G', "NG"}, {'R', "RP"}, {'S', "20"}, {'T', "Of"}, {'V', "Of"}};
  for (const auto& row : rows) {
    BenchLine first({}, quiet());
    BenchLine second(makeProfile(Line::Tessara), quiet());
    first.device.device().forceFault(row.letter);
    second.device.device().forceFault(row.letter);
    EXPECT_EQ(first.ask("gQ"), std::string(1, row.letter));
    EXPECT_EQ(second.ask("s"), row.secondLine);
    EXPECT_EQ(first.device.truth().amps, 0.0);
    first.device.device().forceFault(0);
    EXPECT_EQ(first.ask("gQ"), "1");
  }
}

TEST(Outlets, GoOffBeyondTheShutdownPointsAndComeBackAtTheRestorePoints) {
  struct {
    double volts;
    std::string letter;
  } const steps[] = {{119, "1"}, {81, "1"},  {79, "V"},  {101, "V"}, {104, "V"}, {105, "1"}, {149, "1"},
                     {151, "V"}, {141, "V"}, {140, "1"}, {10, "0"},  {104, "V"}, {120, "1"}};
  BenchLine line({}, quiet());
  for (const auto& step : steps) {
    line.device.hold({.volts = step.volts});
    EXPECT_EQ(line.ask("gQ"), step.letter) << step.volts;
  }
}

TEST(Outlets, AWrittenLimitActsAtOnce) {
  BenchLine line({}, quiet());
  line.device.hold({.volts = 110.0});
  EXPECT_EQ(line.ask("s4\x70"), "OK");  // 112 V
  EXPECT_EQ(line.ask("gQ"), "V");
  EXPECT_EQ(line.ask("g@"), std::string("\0\x01", 2));
}

TEST(Outlets, OptionsDecideWhatShutsThemOff) {
  struct {
    std::string option;
    Held trouble;
    double seconds;
    std::string during, after;
  } const rows[] = {
      {"sJN", {.volts = 0.0}, 1, "0", "1"},
      {"sJY", {.volts = 0.0}, 1, "0", "0"},  // stay off after an outage
      {"sFY", {.neutralGroundVolts = 40.0}, 1, "G", "1"},
      {"sFN", {.neutralGroundVolts = 40.0}, 1, "1", "1"},
      {"sIY", {.amps = 30.0}, 30, "1", "1"},
      {"sHY", {.amps = 30.0}, 5, "1", "1"},
      {"sHY", {.amps = 30.0}, 30, "0", "0"},
  };
  for (const auto& row : rows) {
    BenchLine line({}, quiet());
    ASSERT_EQ(line.ask(row.option), "OK");
    line.device.hold(row.trouble);
    line.idle(row.seconds);
    EXPECT_EQ(line.ask("gQ"), row.during) << row.option << " " << row.seconds;
    line.device.release();
    EXPECT_EQ(line.ask("gQ"), row.after) << row.option << " " << row.seconds;
  }
}

}  // namespace
}  // namespace zephon::simulator
