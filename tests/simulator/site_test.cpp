#include <gtest/gtest.h>

#include <map>

#include "simulator/bench_line.h"

namespace zephon::simulator {
namespace {

using Kind = Disturbance::Kind;

constexpr double kDay = 86400.0;

Site siteOf(std::uint64_t seed) {
  return Site({seed, 120.0, 60.0, 1709649000, true});
}

TEST(SiteTest, DisturbancesComeInOrderAndShowInTheValues) {
  const Site site = siteOf(1);
  std::map<Kind, int> kinds;
  double last = 0;
  for (const Disturbance& d : site.disturbances(0, 20 * kDay)) {
    EXPECT_GE(d.start, last);
    last = d.start;
    ++kinds[d.kind];
    EXPECT_EQ(site.nextChange(d.start - 0.01, d.start + 1), d.start);
    const SiteValues before = site.at(d.start - 0.001);
    const SiteValues during = site.at(d.start + d.seconds / 2);
    const double factor = during.volts / before.volts;
    EXPECT_EQ(factor == 0.0, d.kind == Kind::Outage);
    EXPECT_EQ(factor > 0.0 && factor < 0.9, d.kind == Kind::Sag);
    EXPECT_EQ(factor > 1.1, d.kind == Kind::Swell);
    EXPECT_EQ(during.amps > before.amps + 5.0, d.kind == Kind::Overload);
    EXPECT_NEAR(site.at(d.start + d.seconds + 0.001).volts, before.volts, 3.0);
  }
  EXPECT_EQ(kinds.size(), 5u);
}

TEST(Watching, CountsWhatTheSiteDoesBeyondTheDevicesOwnLimits) {
  struct {
    Disturbance disturbance;
    std::map<Event, std::uint32_t> counted;
    std::string image;  // under voltages, over voltages, outages, surges
  } const rows[] = {
      {{Kind::Sag, 5, 2, 0.75}, {{Event::UnderRecord, 1}}, "1000"},
      {{Kind::Sag, 5, 2, 0.60}, {{Event::UnderShutdown, 1}}, "1000"},
      {{Kind::Sag, 5, 2, 0.90}, {}, "0000"},
      {{Kind::Swell, 5, 2, 1.24}, {{Event::OverRecord, 1}}, "0100"},
      {{Kind::Swell, 5, 2, 1.40}, {{Event::OverShutdown, 1}}, "0100"},
      {{Kind::Outage, 5, 2, 0}, {{Event::Outage, 1}}, "0010"},
      {{Kind::Surge, 5, 0.001, 0}, {{Event::Surge, 1}}, "0001"},
      {{Kind::Overload, 5, 2, 30}, {{Event::Overload, 1}}, "0000"},
  };
  for (const auto& row : rows) {
    BenchLine first({}, quiet());
    first.device.device().registers.ovre = 138;
    first.device.device().registers.ovco = 158;
    BenchLine second(makeProfile(Line::Tessara), quiet());
    for (BenchLine* line : {&first, &second}) {
      line->device.device().site().add(row.disturbance);
      line->idle(30);
    }
    std::map<Event, std::uint32_t> counted;
    for (std::size_t i = 0; i < kEvents; ++i) {
      const auto event = static_cast<Event>(i);
      if (const auto count = first.device.device().count(event)) counted[event] = count;
    }
    EXPECT_TRUE(counted == row.counted) << row.disturbance.level;
    std::string image;
    for (int kind = 0; kind < 4; ++kind) {
      image += std::to_string(second.device.device().image.count(static_cast<ImageEvent>(kind)));
    }
    EXPECT_EQ(image, row.image) << row.disturbance.level;
  }
}

TEST(Watching, AVoltageAtABorderIsOneEventAndADeeperOneIsAnother) {
  struct {
    std::vector<double> volts;
    std::uint32_t record, shutdown;
    int image;
  } const rows[] = {
      {{99.9, 100.2, 99.8, 100.9, 99.5}, 1, 0, 1},
      {{99.9, 101.5, 99.9}, 2, 0, 2},
      {{99.0, 79.0, 99.0, 120.0}, 1, 1, 1},
      {{79.0, 95.0, 79.0}, 0, 2, 1},
      {{150.0, 79.0}, 0, 1, 1},
  };
  for (const auto& row : rows) {
    BenchLine first({}, quiet());
    BenchLine second(makeProfile(Line::Tessara), quiet());
    second.ask("a0");  // under voltage shutdown at 80 V as on the first line
    for (const double volts : row.volts) {
      first.device.hold({.volts = volts});
      second.device.hold({.volts = volts});
    }
    EXPECT_EQ(first.device.device().count(Event::UnderRecord), row.record) << row.volts[0];
    EXPECT_EQ(first.device.device().count(Event::UnderShutdown), row.shutdown) << row.volts[0];
    EXPECT_EQ(second.device.device().image.count(ImageEvent::UnderVoltage), row.image) << row.volts[0];
  }
}

TEST(Watching, DoesNotDependOnWhoAsksHowOften) {
  Options options;
  options.pastSeconds = kDay;
  BenchLine asked({}, options);
  BenchLine leftAlone({}, options);
  for (int i = 0; i < 5000; ++i) asked.ask("g9", 7310.7);
  leftAlone.idle(std::chrono::duration<double>(asked.loop.now()).count());
  std::uint32_t total = 0;
  for (std::size_t i = 0; i < kEvents; ++i) {
    const auto event = static_cast<Event>(i);
    EXPECT_EQ(asked.device.device().count(event), leftAlone.device.device().count(event)) << i;
    total += leftAlone.device.device().count(event);
  }
  EXPECT_GT(total, 10u);
  EXPECT_DOUBLE_EQ(asked.device.device().kilowattHours(), leftAlone.device.device().kilowattHours());
  EXPECT_GT(leftAlone.device.device().kilowattHours(), 5.0);
}

}  // namespace
}  // namespace zephon::simulator
