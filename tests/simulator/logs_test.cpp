#include <gtest/gtest.h>

#include "simulator/bench_line.h"

namespace zephon::simulator {
namespace {

using namespace std::string_literals;

constexpr std::size_t kEventHead = 4;     // wrap digit, address
constexpr std::size_t kHistoryHead = 23;  // clock and these

// `count` records of a frame, in hex, one a line.
std::string records(const std::string& frame, std::size_t head, std::size_t bytes, std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) text += hex(frame.substr(head + i * bytes, bytes)) + "\n";
  return text;
}

bool erased(const std::string& bytes) {
  return !bytes.empty() && bytes.find_first_not_of('\xFF') == std::string::npos;
}

// Holds one set of values after the other, each for its seconds.
void play(BenchLine& line, const std::vector<std::pair<double, Held>>& steps) {
  for (const auto& [seconds, held] : steps) {
    line.device.hold(held);
    line.idle(seconds);
  }
}

TEST(EventLogTest, HasStartsAndEndsOfWhatIsCounted) {
  BenchLine line({}, quiet());
  play(line, {{5, {.volts = 120}},
              {5, {.volts = 85}},   // 14:30:05 under
              {2, {.volts = 70}},   // 10 shutdown
              {3, {.volts = 120}},  // 12 both end
              {2, {.volts = 0}},    // 15 outage
              {3, {.volts = 120}},  // 17
              {1, {.volts = 153}},  // 20 over, and off at once
              {9, {.volts = 120}},  // 21
              {5, {.volts = 120, .amps = 34}},
              {25, {.volts = 120, .amps = 3}}});
  line.device.release();
  line.device.device().site().add({Disturbance::Kind::Surge, 61, 0.001, 0});
  line.idle(5);
  const std::string frame = line.ask("gE");
  ASSERT_EQ(frame.size(), 8196u);
  EXPECT_EQ(hex(frame.substr(0, 4)), "3001b060");  // "0", 110592 + 12 * 8
  EXPECT_EQ(records(frame, kEventHead, 8, 12),
            "0424050305301455\n"
            "0224050310301446\n"
            "8224050312301446\n"
            "8424050312301446\n"
            "0124050315301400\n"
            "8124050317301400\n"
            "1024050320301499\n"
            "9024050321301499\n"
            "4024050330301422\n"
            "c024050335301422\n"
            "2024050301311400\n"
            "a024050301311400\n");
  EXPECT_TRUE(erased(frame.substr(kEventHead + 12 * 8)));
  EXPECT_EQ(line.ask("s>Y"), "OK");
  EXPECT_EQ(hex(line.ask("gE").substr(0, 6)), "3001b000ffff");
}

TEST(EventLogTest, MagnitudesAreOnThe120VoltBasis) {
  BenchLine line(makeProfile(Line::Orvantis, 240), quiet());
  play(line, {{1, {.volts = 170}}});
  EXPECT_EQ(records(line.ask("gE"), kEventHead, 8, 1), "0424050300301455\n");
}

TEST(HistoryLogTest, RowsAreHalfHoursAndWhatOutagesLeaveOfThem) {
  const Held load{.volts = 120, .amps = 10, .watts = 1200};
  const Held heavy{.volts = 121, .amps = 250, .watts = 131068};
  BenchLine line({}, quiet());
  line.device.hold(load);
  line.device.device().clearHistory();
  play(line, {{1800 + 600, load}, {120, {.volts = 0}}, {1079, heavy}, {61, {121, 1.0, -4.0}}});
  const std::string frame = line.ask("gD", 10'000);
  ASSERT_EQ(frame.size(), 110599u);
  EXPECT_EQ(frame.substr(0, 20), "15:31:00 03/05/20240");
  EXPECT_EQ(hex(frame.substr(20, 3)), "000050");  // 16 + 4 * 16
  EXPECT_EQ(records(frame, kHistoryHead, 16, 4),
            "240503003014000a7878f5202c01a400\n"
            "240503000015000a0078fc0a2c013600\n"  // ten minutes
            "24050300121500fa7979f013ff7f252a\n"  // 18 minutes
            "240503003015000179791b01ffff0000\n");
  EXPECT_TRUE(erased(frame.substr(kHistoryHead + 4 * 16)));
  EXPECT_EQ(line.ask("s@Y"), "OK");
  EXPECT_EQ(hex(line.ask("gD", 10'000).substr(19, 6)), "30000010ffff");
}

TEST(RecordRingTest, WritesOverTheOldestAndTellsWhereItStands) {
  BenchLine line({}, quiet());
  RecordRing& history = line.device.device().history.ring();
  for (int i = 0; i < 6911; ++i) history.write("old");
  history.write("a record of 16 by");
  const std::string frame = line.ask("gD", 10'000);
  EXPECT_EQ(hex(frame.substr(19, 4)), "31000020");
  EXPECT_EQ(frame.substr(kHistoryHead, 19), "a record of 16 bold");
  for (int i = 0; i < 513; ++i) line.device.device().events.ring().write("12345678");
  EXPECT_EQ(hex(line.ask("gE").substr(0, 4)), "3101b008");
}

TEST(RecordRingTest, EveryFourthOutageLeavesABlankRecord) {
  BenchLine line({}, quiet());
  for (int i = 0; i < 5; ++i) play(line, {{100, {.volts = 120}}, {10, {.volts = 0}}});
  const std::string events = line.ask("gE");
  EXPECT_EQ(hex(events.substr(1, 3)), "01b050");  // five starts, four ends and the blank
  EXPECT_TRUE(erased(events.substr(kEventHead + 7 * 8, 8)));
  EXPECT_TRUE(erased(line.ask("gD", 10'000).substr(kHistoryHead + 4 * 16, 16)));
}

// Volts, amps, watts, neutral-ground volts, hertz, power factor and its letter, crest factor.
const Held kSample{120.0, 10.0, 1200.0, 1.5, 60.0, 0.95, 'L', 1.4};

TEST(ChartMemoryTest, RecordsMarksAndSamples) {
  const Held odd{120.0, 10.0, -5.0, 1.5, 60.0, -0.5, 'C', 0.98};
  BenchLine line({}, quiet());
  const auto hold = [&line](const Held& held, double seconds) {
    line.device.hold(held);
    line.device.device().setEnergy(348);
    line.idle(seconds);
  };
  line.device.device().startChart();
  hold(kSample, 24);
  line.device.device().setClock(1546300798);
  line.idle(11);
  hold(odd, 10);
  line.device.hold({.volts = 0});
  line.idle(20);
  hold(kSample, 11);
  const std::string page = line.ask("g`\x02\0"s, 4000);
  ASSERT_EQ(page.size(), 32770u);
  EXPECT_EQ(page.substr(0, 2), "M4");
  EXPECT_EQ(hex(page.substr(2, 139)),
            "535452"
            "143000030524"
            "3c000a00012c00018001eb857a4c0166018000f1"
            "3c000a00012c00018001eb857a4c0166018001e2"
            "434446"
            "235958123118"
            "3c000a00012c00018001eb857a4c016601800334"
            "3c000a00fffe00018001eb85bf4301fa017fffff"
            "505752"
            "000039010119"
            "3c000a00012c00018001eb857a4c0166018000f1"
            "ffffffffffffffffffffffff");
  EXPECT_EQ(line.ask("gasEYga"), "YOKY");
  EXPECT_TRUE(erased(line.ask("g`\x02\0"s, 4000).substr(11)));  // begun anew
}

TEST(ChartMemoryTest, EndsWithItsLastPage) {
  BenchLine line({.chartMemory = ChartFitted::FourPages}, quiet());
  line.device.hold(kSample);
  EXPECT_EQ(line.ask("sEY"), "OK");
  line.idle(6553 * 10 - 1);
  EXPECT_EQ(line.ask("ga"), "Y");
  line.idle(20);
  EXPECT_EQ(line.ask("ga"), "N");
  EXPECT_TRUE(line.ask("g`\x03\x80", 4000).ends_with("END"));
  EXPECT_TRUE(erased(line.ask("g`\x04\0"s, 4000).substr(2)));
  EXPECT_EQ(line.ask("g`\x01\x80", 4000), "");
}

}  // namespace
}  // namespace zephon::simulator
