#include <gtest/gtest.h>

#include "simulator/bench_line.h"

namespace zephon::simulator {
namespace {

using Kind = Disturbance::Kind;

constexpr double kDay = 86400.0;

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
  // Volts; under voltages recorded and shut down, and those in the second line's image.
  const std::tuple<std::vector<double>, std::uint32_t, std::uint32_t, int> rows[] = {
      {{99.9, 100.2, 99.8, 100.9, 99.5}, 1, 0, 1},
      {{99.9, 101.5, 99.9}, 2, 0, 2},
      {{99.0, 79.0, 99.0, 120.0}, 1, 1, 1},
      {{79.0, 95.0, 79.0}, 0, 2, 1}};
  for (const auto& [seen, record, shutdown, image] : rows) {
    BenchLine first({}, quiet());
    BenchLine second(makeProfile(Line::Tessara), quiet());
    second.ask("a0");  // under voltage shutdown at 80 V as on the first line
    for (const double volts : seen) {
      first.device.hold({.volts = volts});
      second.device.hold({.volts = volts});
    }
    EXPECT_EQ(first.device.device().count(Event::UnderRecord), record) << seen[0];
    EXPECT_EQ(first.device.device().count(Event::UnderShutdown), shutdown) << seen[0];
    EXPECT_EQ(second.device.device().image.count(ImageEvent::UnderVoltage), image) << seen[0];
  }
}

TEST(Watching, DoesNotDependOnWhoAsksHowOften) {
  Options options;
  options.pastSeconds = kDay;
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

}  // namespace
}  // namespace zephon::simulator
