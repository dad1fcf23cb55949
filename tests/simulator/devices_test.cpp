#include <gtest/gtest.h>

#include "simulator/bench_line.h"

// What a device of each line tells.

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
}

// The bytes of a dump from `first` on, in hex.
std::string imageBytes(const std::string& dump, int first, int count) {
  std::string bytes;
  for (int i = first; i < first + count; ++i)
    bytes += static_cast<char>(dump[static_cast<std::size_t>(2 * i)] - 48);
  return hex(bytes);
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
  EXPECT_EQ(imageBytes(dump, 1, 20), "1245e301000000000000900000004099ffffffff");
  EXPECT_EQ(imageBytes(dump, 241, 13), "01000001000001000001000010");

  for (int i = 1; i < 123; ++i) image.record(ImageEvent::UnderVoltage, 7);
  const std::string wrapped = line.ask("+");
  EXPECT_EQ(imageBytes(wrapped, 241, 3), "230100");  // 123, the lowest pair first
  EXPECT_EQ(imageBytes(wrapped, 253, 1), "18");      // 126 records: the 7th place is next
  EXPECT_EQ(image.count(ImageEvent::UnderVoltage), 123);

  EXPECT_EQ(line.ask("z"), "");
  EXPECT_EQ(imageBytes(line.ask("+"), 239, 17), "ffff" + std::string(26, '0') + "0001");
  image.poke(100, 0xFE);
  EXPECT_EQ(imageBytes(line.ask("+"), 100, 1), "ff") << "never a separator for a byte";
}

}  // namespace
}  // namespace zephon::simulator
