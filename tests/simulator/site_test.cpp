#include <gtest/gtest.h>

#include "simulator/bench_line.h"

namespace zephon::simulator {
namespace {

using Kind = Disturbance::Kind;

TEST(Watching, CountsWhatTheSiteDoesBeyondTheDevicesOwnLimits) {
  // A disturbance; the one counter of the first line; under, over voltages, outages and surges of the second.
  const std::tuple<Disturbance, std::optional<Event>, std::string> rows[] = {
      {{Kind::Sag, 5, 2, 0.75}, Event::UnderRecord, "1000"},
      {{Kind::Sag, 5, 2, 0.60}, Event::UnderShutdown, "1000"},
      {{Kind::Sag, 5, 2, 0.90}, std::nullopt, "0000"},
      {{Kind::Swell, 5, 2, 1.24}, Event::OverRecord, "0100"},
      {{Kind::Swell, 5, 2, 1.40}, Event::OverShutdown, "0100"},
      {{Kind::Outage, 5, 2, 0}, Event::Outage, "0010"},
      {{Kind::Surge, 5, 0.001, 0}, Event::Surge, "0001"},
      {{Kind::Overload, 5, 2, 30}, Event::Overload, "0000"}};
  for (const auto& [disturbance, counted, image] : rows) {
    BenchLine first({}, quiet());
    first.device.device().registers.ovre = 138;
    first.device.device().registers.ovco = 158;
    BenchLine second(makeProfile(Line::Tessara), quiet());
    for (BenchLine* line : {&first, &second}) {
      line->device.device().site().add(disturbance);
      line->idle(30);
    }
    for (std::size_t i = 0; i < kEvents; ++i) {
      const auto event = static_cast<Event>(i);
      EXPECT_EQ(first.device.device().count(event), event == counted ? 1u : 0u) << i << ' ' << image;
    }
    std::string held;
    for (int kind = 0; kind < 4; ++kind)
      held += std::to_string(second.device.device().image.count(static_cast<ImageEvent>(kind)));
    EXPECT_EQ(held, image) << disturbance.level;
  }
}

TEST(Watching, AVoltageAtABorderIsOneEventAndADeeperOneIsAnother) {
  // Volts; under voltages recorded and shut down.
  const std::tuple<std::vector<double>, std::uint32_t, std::uint32_t> rows[] = {
      {{99.9, 100.2, 99.8, 100.9, 99.5}, 1, 0},
      {{99.9, 101.5, 99.9}, 2, 0},
      {{99.0, 79.0, 99.0, 120.0}, 1, 1}};
  for (const auto& [seen, record, shutdown] : rows) {
    BenchLine line({}, quiet());
    for (const double volts : seen) line.device.hold({.volts = volts});
    EXPECT_EQ(line.device.device().count(Event::UnderRecord), record) << seen[0];
    EXPECT_EQ(line.device.device().count(Event::UnderShutdown), shutdown) << seen[0];
  }
}

TEST(Watching, DoesNotDependOnWhoAsksHowOften) {
  Options options;
  options.pastSeconds = 86'400;
  BenchLine asked({}, options);
  BenchLine leftAlone({}, options);
  for (int i = 0; i < 5000; ++i) asked.ask("g9", 7310.7);
  leftAlone.idle(std::chrono::duration<double>(asked.loop.now()).count());
  Device& one = asked.device.device();
  Device& other = leftAlone.device.device();
  EXPECT_EQ(one.events.frame(), other.events.frame());
  EXPECT_DOUBLE_EQ(one.kilowattHours(), other.kilowattHours());
  EXPECT_GT(other.kilowattHours(), 5.0);
}

TEST(Outlets, GoOffBeyondTheShutdownPointsAndComeBackAtTheRestorePoints) {
  const std::pair<double, std::string> steps[] = {{81, "1"},  {79, "V"},  {104, "V"}, {105, "1"}, {149, "1"},
                                                  {151, "V"}, {141, "V"}, {140, "1"}, {10, "0"},  {104, "V"}};
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
      {"sHY", {.amps = 30.0}, 5, "1", "1"},
      {"sHY", {.amps = 30.0}, 30, "0", "0"}};
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
