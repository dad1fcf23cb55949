#include <gtest/gtest.h>

#include <cmath>

#include "simulator/bench_line.h"
#include "simulator/scope_sampler.h"

namespace zephon::simulator {
namespace {

const SiteValues kSeen = {
    .volts = 120, .amps = 10, .hertz = 50, .powerFactor = 0.5, .reactive = 'L', .crestFactor = 1.25};

TEST(WaveformTest, ShapesKeepTheRmsValuesOfTheSite) {
  const std::tuple<const char*, double, double> rows[] = {{"sine", 600, 169.7},
                                                          {"phase-shifted", 600, 169.7},
                                                          {"switching-supply", 820, 158},
                                                          {"square-ups", 1200, 150}};
  for (const auto& [name, expectedWatts, crest] : rows) {
    double volts = 0, amps = 0, watts = 0, peak = 0;
    constexpr int kSteps = 20'000;
    for (int i = 0; i < kSteps; ++i) {
      const WaveSample sample = waveAt(*waveformNamed(name), kSeen, 0.02 * (i + 0.5) / kSteps);
      volts += sample.volts * sample.volts / kSteps;
      amps += sample.amps * sample.amps / kSteps;
      watts += sample.volts * sample.amps / kSteps;
      peak = std::max(peak, sample.volts);
    }
    EXPECT_NEAR(std::sqrt(volts), 120, 0.05) << name;
    EXPECT_NEAR(std::sqrt(amps), 10, 0.01) << name;
    EXPECT_NEAR(watts, expectedWatts, 1) << name;
    EXPECT_NEAR(peak, crest, 1) << name;
  }
}

TEST(WaveformTest, TheSagIsInMidCapture) {
  for (const auto& [start, level] : {std::pair(0.0, 1.0), {0.020, 0.4}, {0.040, 0.4}, {0.060, 1.0}}) {
    const double peak = waveAt(Waveform::Sag, kSeen, start + 0.005).volts;
    EXPECT_NEAR(peak, level * 120 * std::sqrt(2.0), 1e-6) << start;
  }
}

TEST(ScopeSamplerTest, SamplesAreHeldAtTheEndsOfTheConverter) {
  const std::pair<double, const char*> volts[] = {{0, "00"},   {4, "01"},   {-4, "ff"},   {5.9, "01"},
                                                  {508, "7f"}, {900, "7f"}, {-512, "80"}, {-900, "80"}};
  for (const auto& [value, bytes] : volts) EXPECT_EQ(hex(voltsSample(value)), bytes) << value;
  const std::pair<double, const char*> amps[] = {
      {1 / 128.0, "0001"}, {-1 / 128.0, "ffff"}, {2.5, "0140"}, {300, "7fff"}, {-300, "8000"}};
  for (const auto& [value, bytes] : amps) EXPECT_EQ(hex(ampsSample(value)), bytes) << value;
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
