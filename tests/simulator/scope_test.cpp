#include <gtest/gtest.h>

#include <cmath>

#include "simulator/bench_line.h"
#include "simulator/scope_sampler.h"

namespace zephon::simulator {
namespace {

const SiteValues kSeen = {
    .volts = 120, .amps = 10, .hertz = 50, .powerFactor = 0.5, .reactive = 'L', .crestFactor = 1.25};

TEST(WaveformTest, ShapesKeepTheRmsValuesOfTheSite) {
  for (const char* name : {"sine", "switching-supply", "phase-shifted", "square-ups"}) {
    double volts = 0;
    double amps = 0;
    double watts = 0;
    double peak = 0;
    constexpr int kSteps = 20'000;
    for (int i = 0; i < kSteps; ++i) {
      const WaveSample sample = waveAt(*waveformNamed(name), kSeen, 0.02 * (i + 0.5) / kSteps);
      volts += sample.volts * sample.volts / kSteps;
      amps += sample.amps * sample.amps / kSteps;
      watts += sample.volts * sample.amps / kSteps;
      peak = std::max(peak, sample.volts);
    }
    const std::string_view shape = name;
    EXPECT_NEAR(std::sqrt(volts), 120, 0.05) << name;
    EXPECT_NEAR(std::sqrt(amps), 10, 0.01) << name;
    const double halfWatts = shape == "sine" || shape == "phase-shifted" ? 600 : watts;
    EXPECT_NEAR(watts, halfWatts, 1) << name;
    const double crest = shape == "square-ups" ? 150 : shape == "switching-supply" ? 158 : 169.7;
    EXPECT_NEAR(peak, crest, 1) << name;
  }
  EXPECT_FALSE(waveformNamed("moon"));
}

TEST(WaveformTest, TheSagIsInMidCapture) {
  const auto peakFrom = [](double start) {
    return waveAt(Waveform::Sag, kSeen, start + 0.005).volts / (120 * std::sqrt(2.0));
  };
  EXPECT_NEAR(peakFrom(0), 1, 1e-9);
  EXPECT_NEAR(peakFrom(0.020), 0.4, 1e-9);
  EXPECT_NEAR(peakFrom(0.040), 0.4, 1e-9);
  EXPECT_NEAR(peakFrom(0.060), 1, 1e-9);
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
  const struct {
    std::string command, mark;
    std::size_t sampleBytes;
  } rows[] = {{"gS", "VV", 1}, {"gT", "AA", 2}, {"gU", "VA", 3}};
  for (const auto& row : rows) {
    BenchLine line({}, quiet());
    line.device.hold({.volts = 120, .amps = 10, .hertz = 60});
    const std::size_t block = 256 * row.sampleBytes;
    const std::string one = line.ask(row.command);
    ASSERT_EQ(one.size(), 2 + block);
    EXPECT_EQ(one.substr(0, 2), row.mark);
    const std::string four = line.ask(row.command + row.command + row.command + row.command);
    ASSERT_EQ(four.size(), 2 + 4 * block);
    EXPECT_EQ(four.substr(0, 2 + block), one);
    line.device.clearLog();
    line.device.hear(row.command, line.baud);
    line.idle(0.010);  // the block is still on its way
    line.ask(row.command);
    EXPECT_EQ(line.device.sent(), four.substr(0, 2 + 2 * block));
    EXPECT_EQ(line.ask(row.command), one) << "a pause ends the capture";
  }
}

}  // namespace
}  // namespace zephon::simulator
