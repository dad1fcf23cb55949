#include <gtest/gtest.h>

#include "simulator/bench_line.h"

namespace zephon::simulator {
namespace {

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

TEST(Outlets, StayOffAfterAnOverloadUntilSomebodyPutsThemOn) {
  Options options = quiet();
  options.site = Story::OverloadedCircuit;
  BenchLine line({}, options);
  line.device.device().site().add({Disturbance::Kind::Overload, 100, 60, 25});
  for (const auto& [seconds, letter] : {std::pair(105, "1"), {10, "0"}, {280, "0"}, {20, "1"}}) {
    line.idle(seconds);
    EXPECT_EQ(line.ask("gQ"), letter) << seconds;
  }
}

}  // namespace
}  // namespace zephon::simulator
