#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "simulator/bench_line.h"
#include "simulator/sensor.h"

namespace zephon::simulator {
namespace {

// The bytes of a dump from `first` on, in hex.
std::string imageBytes(const std::string& dump, int first, int count) {
  std::string bytes;
  for (int i = first; i < first + count; ++i)
    bytes += static_cast<char>(dump[static_cast<std::size_t>(2 * i)] - 48);
  return hex(bytes);
}

TEST(Tessara, TellsItsIdentity) {
  BenchLine line(makeProfile(Line::Tessara, 240), quiet());
  EXPECT_EQ(line.ask("r"), "1*14");
  EXPECT_EQ(hex(line.ask("i")), "2b2e812ee6");
  EXPECT_EQ(line.ask("g"), "180");
  EXPECT_EQ(line.ask("n1"), "");
  EXPECT_EQ(line.ask("g"), "120");
  EXPECT_EQ(line.ask("n2g"), "180");
  EXPECT_EQ(line.device.noise(), "");

  BenchLine newest(makeProfile(Line::Tessara), quiet());
  EXPECT_EQ(newest.ask("jkjlj"), "NYN");

  Profile older = makeProfile(Line::Tessara, 240);
  older.firmware = "1*13";
  BenchLine silent(older, quiet());
  EXPECT_EQ(silent.ask("g"), "");
  EXPECT_FALSE(silent.device.device().centreTapped);
}

TEST(Tessara, DumpHasCountersRingAndLimitsInTheirPlaces) {
  BenchLine line(makeProfile(Line::Tessara), quiet());
  const std::string fresh = line.ask("+");
  ASSERT_EQ(fresh.size(), 512u);
  EXPECT_EQ(fresh.substr(500), "0.0.0.0.0.1.");  // surges, ring position, limit bytes 00 and 01

  MemoryImage& image = line.device.device().image;
  constexpr std::int64_t kSpan = ((1 * 24 + 23) * 60 + 45) * 60 + 12;
  image.record(ImageEvent::Surge, kSpan);
  image.record(ImageEvent::UnderVoltage, 0);
  image.record(ImageEvent::Outage, 10 * 3600);
  image.record(ImageEvent::OverVoltage, 200 * 86400);
  const std::string dump = line.ask("+");
  EXPECT_EQ(imageBytes(dump, 1, 16),
            "1245e301"
            "00000000"
            "00009000"
            "00004099");
  EXPECT_EQ(imageBytes(dump, 17, 4), "ffffffff");
  EXPECT_EQ(imageBytes(dump, 241, 13),
            "010000"
            "010000"
            "010000"
            "010000"
            "10");

  for (int i = 0; i < 60; ++i) image.record(ImageEvent::UnderVoltage, i);
  for (int i = 61; i < 123; ++i) image.record(ImageEvent::UnderVoltage, 7);
  const std::string wrapped = line.ask("+");
  EXPECT_EQ(imageBytes(wrapped, 241, 3), "230100");  // 123, the lowest pair first
  EXPECT_EQ(imageBytes(wrapped, 253, 1), "18");      // 126 records: the 7th place is next
  EXPECT_EQ(image.count(ImageEvent::UnderVoltage), 123);

  EXPECT_EQ(line.ask("z"), "");
  EXPECT_EQ(imageBytes(line.ask("+"), 239, 17), "ffff" + std::string(26, '0') + "0001");
}

TEST(Tessara, NeverSendsASeparatorForAByte) {
  BenchLine line(makeProfile(Line::Tessara), quiet());
  line.device.device().image.poke(100, 0xFE);
  const std::string dump = line.ask("+");
  EXPECT_EQ(std::count(dump.begin(), dump.end(), '.'), 256);
  EXPECT_EQ(imageBytes(dump, 100, 1), "ff");
  EXPECT_EQ(line.ask("a."), "");
  EXPECT_EQ(line.device.device().image.at(255), 0x01);
}

TEST(Tessara, EchoesAndKeepsItsLimits) {
  struct {
    int rating;
    std::string write;
    Limits limits;
  } const rows[] = {
      {120, "a0", {80, 100, 105, 140, 135, 150}},    {120, "a1", {0, 100, 105, 140, 135, 150}},
      {120, "a\x42", {85, 100, 105, 130, 135, 135}}, {120, "a\x54", {90, 100, 105, 135, 135, 140}},
      {120, "a\x78", {95, 100, 105, 140, 135, 145}}, {120, "a\xB0", {80, 100, 105, 140, 135, 160}},
      {120, "b\x41", {0, 95, 105, 140, 140, 150}},   {120, "b\xB8", {0, 80, 105, 140, 160, 150}},
      {120, "b\x62", {0, 90, 105, 140, 145, 150}},   {240, "a0", {140, 180, 190, 250, 260, 260}},
      {240, "a\x41", {0, 180, 190, 260, 260, 270}},  {240, "b\x74", {140, 150, 190, 250, 290, 260}},
      {120, "a\x63", {0, 100, 105, 130, 135, 135}},  // more than one bit: the lowest counts here
      {120, "b\x63", {0, 90, 105, 140, 145, 150}},   // and the highest there
  };
  for (const auto& row : rows) {
    BenchLine line(makeProfile(Line::Tessara, row.rating), quiet());
    EXPECT_EQ(line.ask(row.write), row.write.substr(1));
    const Limits limits = line.device.device().limits();
    EXPECT_EQ(std::to_array({limits.uvco, limits.uvre, limits.uvrs, limits.ovrs, limits.ovre, limits.ovco}),
              std::to_array({row.limits.uvco, row.limits.uvre, row.limits.uvrs, row.limits.ovrs,
                             row.limits.ovre, row.limits.ovco}))
        << row.rating << " " << hex(row.write);
  }
}

TEST(Tessara, TellsTheTimeSinceItsNewestEvent) {
  BenchLine line(makeProfile(Line::Tessara), quiet());
  line.device.hold({.volts = 90.0});
  line.idle(((10 * 24 + 12) * 60 + 34) * 60 + 56);
  EXPECT_EQ(hex(line.ask("t", 100)), "402e422e642e86");
  EXPECT_EQ(hex(imageSpan(200 * 86400)), "c92e302e302e30");  // no more than 99 days
}

// What a reader makes of a mean count of the line-ground input.
double correctedVolts(double count, int rating, bool centreTapped) {
  const double raw = count - 5.0;
  double volts = (120.0 - raw) / 6.0 + raw;
  if (rating == 240) {
    const double plain = (240.0 - raw * 1.65) / 10.0 + raw * 1.65;
    volts = plain - (plain > 280) - (plain > 250) - (plain > 240) - (plain > 228);
    for (const double below : {160.0, 145.0, 130.0, 123.0, 120.0, 105.0}) volts -= plain < below ? 1.0 : 0.0;
    if (centreTapped) volts += 10.0;
  }
  if (volts < 30.0) volts = (120.0 - raw) / 6.0 + raw - 4.0;
  if (rating == 240 && volts < 95.0) volts += (volts - 100.0) / (volts < 65.0 ? 3.2 : 4.0);
  const double rounded = std::nearbyint(volts);
  return rounded < (rating == 240 ? 40.0 : 20.0) ? 0.0 : rounded;
}

TEST(Tessara, SensorGivesTheTrueVoltageBack) {
  struct {
    int rating;
    bool centreTapped;
    int from, to;
  } const rows[] = {{120, false, 30, 180}, {240, false, 41, 300}, {240, true, 41, 300}};
  for (const auto& row : rows) {
    for (int volts = row.from; volts <= row.to; ++volts) {
      EXPECT_NEAR(
          correctedVolts(lineGroundCount(volts, row.rating, row.centreTapped), row.rating, row.centreTapped),
          volts, 1.6)
          << row.rating << " " << row.centreTapped;
    }
    EXPECT_EQ(
        correctedVolts(lineGroundCount(5.0, row.rating, row.centreTapped), row.rating, row.centreTapped),
        0.0);
  }
}

TEST(Tessara, SamplesAverageToTheirMean) {
  struct {
    char command;
    Held held;
    double mean;
  } const rows[] = {{'v', {.volts = 118.0}, 48 + 122.6},
                    {'v', {.volts = 0.0}, 48 + 5 - 19.2},
                    {'p', {.neutralGroundVolts = 2.3}, 2.3},
                    {'p', {.neutralGroundVolts = 14.5}, 13.5}};
  for (const auto& row : rows) {
    BenchLine line(makeProfile(Line::Tessara), quiet());
    line.device.hold(row.held);
    double sum = 0;
    for (const char sample : line.ask(std::string(50, row.command)))
      sum += static_cast<unsigned char>(sample);
    EXPECT_NEAR(sum / 50, row.mean, 0.05) << row.command;
  }
}

}  // namespace
}  // namespace zephon::simulator
