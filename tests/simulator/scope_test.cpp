#include <gtest/gtest.h>

#include "simulator/bench_line.h"
#include "simulator/scope_sampler.h"

namespace zephon::simulator {
namespace {

TEST(ScopeSamplerTest, SamplesAreHeldAtTheEndsOfTheConverter) {
  for (const auto& [value, bytes] :
       {std::pair{4.0, "01"}, {-4, "ff"}, {5.9, "01"}, {900, "7f"}, {-900, "80"}})
    EXPECT_EQ(hex(voltsSample(value)), bytes) << value;
  for (const auto& [value, bytes] :
       {std::pair{-1 / 128.0, "ffff"}, {2.5, "0140"}, {300, "7fff"}, {-300, "8000"}})
    EXPECT_EQ(hex(ampsSample(value)), bytes) << value;
}

TEST(ScopeSamplerTest, CommandsInARowGiveOneWaveBehindOneMark) {
  const std::tuple<std::string, std::string, std::size_t> rows[] = {
      {"gS", "VV", 256}, {"gT", "AA", 512}, {"gU", "VA", 768}};
  for (const auto& [command, mark, block] : rows) {
    BenchLine line({}, quiet());
    line.device.hold({.volts = 120, .amps = 10, .hertz = 60});
    const std::string one = line.ask(command);
    ASSERT_EQ(one.size(), 2 + block);
    EXPECT_EQ(one.substr(0, 2), mark);
    const std::string four = line.ask(command + command + command + command);
    ASSERT_EQ(four.size(), 2 + 4 * block);
    line.device.clearLog();
    line.device.hear(command, line.baud);
    line.idle(0.010);  // the block is still on its way
    line.ask(command);
    EXPECT_EQ(line.device.sent(), four.substr(0, 2 + 2 * block));
    EXPECT_EQ(line.ask(command), one) << "a pause ends the capture";
  }
}

}  // namespace
}  // namespace zephon::simulator
