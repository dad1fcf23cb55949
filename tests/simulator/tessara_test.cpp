#include <gtest/gtest.h>

#include <algorithm>

#include "simulator/bench_line.h"

namespace zephon::simulator {
namespace {

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
  EXPECT_EQ(imageBytes(dump, 1, 20),
            "1245e301"
            "00000000"
            "00009000"
            "00004099"
            "ffffffff");
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

}  // namespace
}  // namespace zephon::simulator
