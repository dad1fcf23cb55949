#include <gtest/gtest.h>

#include "simulator/bench_line.h"

namespace zephon::simulator {
namespace {

TEST(Orvantis, TellsReadingsAsSharesOfFullScale) {
  // Volts, amps, watts, neutral-ground volts, hertz, power factor and its letter, crest factor.
  const Held ordinary{120.0, 10.0, 1200.0, 1.5, 60.0, 0.95, 'L', 1.4};
  const Held extreme{600.0, 0.0, -5.0, 65535.99999, 0.0, -0.5, 'C', 1.0};
  const std::array<std::string, 3> rows[] = {
      {"g4", "3c00", "ffff"},     {"g6", "0a00", "0000"}, {"g8", "012c", "0000"},
      {"g5", "000180", "ffffff"}, {"g;", "01ec", "0000"}, {"g7", "2a00", "9600"},  // peak volts times 64
      {"g:", "7a4c", "bf43"},  // doubled signed share, negative as ones' complement; the letter
  };
  BenchLine line({}, quiet());
  for (const auto& [command, ofOrdinary, ofExtreme] : rows) {
    line.device.hold(ordinary);
    EXPECT_EQ(hex(line.ask(command)), ofOrdinary) << command;
    line.device.hold(extreme);
    EXPECT_EQ(hex(line.ask(command)), ofExtreme) << command;
  }
  line.device.hold({.powerFactor = 1.0, .reactive = ' '});
  EXPECT_EQ(hex(line.ask("g:")), "7f20");
}

}  // namespace
}  // namespace zephon::simulator
