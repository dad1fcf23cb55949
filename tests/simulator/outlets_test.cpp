#include <gtest/gtest.h>

#include "simulator/bench_line.h"

namespace zephon::simulator {
namespace {

TEST(Outlets, GoOffBeyondTheShutdownPointsAndComeBackAtTheRestorePoints) {
  const std::pair<double, std::string> steps[] = {{119, "1"}, {81, "1"},  {79, "V"},  {104, "V"},
                                                  {105, "1"}, {149, "1"}, {151, "V"}, {141, "V"},
                                                  {140, "1"}, {10, "0"},  {104, "V"}, {120, "1"}};
  BenchLine line({}, quiet());
  for (const auto& [volts, letter] : steps) {
    line.device.hold({.volts = volts});
    EXPECT_EQ(line.ask("gQ"), letter) << volts;
  }
}

TEST(Outlets, OptionsDecideWhatShutsThemOff) {
  // The option, the trouble and its seconds; the outlets during it and after.
  const std::tuple<std::string, Held, double, std::string, std::string> rows[] = {
      {"sJN", {.volts = 0.0}, 1, "0", "1"},
      {"sJY", {.volts = 0.0}, 1, "0", "0"},  // stay off after an outage
      {"sFY", {.neutralGroundVolts = 40.0}, 1, "G", "1"},
      {"sFN", {.neutralGroundVolts = 40.0}, 1, "1", "1"},
      {"sIY", {.amps = 30.0}, 30, "1", "1"},
      {"sHY", {.amps = 30.0}, 5, "1", "1"},
      {"sHY", {.amps = 30.0}, 30, "0", "0"},
  };
  for (const auto& [option, trouble, seconds, during, after] : rows) {
    BenchLine line({}, quiet());
    ASSERT_EQ(line.ask(option), "OK");
    line.device.hold(trouble);
    line.idle(seconds);
    EXPECT_EQ(line.ask("gQ"), during) << option << " " << seconds;
    line.device.release();
    EXPECT_EQ(line.ask("gQ"), after) << option << " " << seconds;
  }
}

}  // namespace
}  // namespace zephon::simulator
