#include "logs/chart_memory.h"

#include <gtest/gtest.h>

#include "protocol/day_serial.h"
#include "protocol/encodings.h"
#include "support/log_bytes.h"
#include "text/number.h"
#include "text/picture.h"

namespace zephon {
namespace {

using namespace testing_support;

constexpr UtcOffset kTwoEast{-2 / 24.0};
constexpr double kSecond = 1 / 86400.0;
const CalendarTime kNoon{2013, 5, 1, 10, 0, 0};  // 12:00:00 two hours east
constexpr double kNoonSerial = 41395.5;

std::vector<double> times(const LogTable<9>& log) {
  std::vector<double> seconds;
  for (const auto& row : log) seconds.push_back(std::round((row[0] - kNoonSerial) * 86400 * 1000) / 1000);
  return seconds;
}

TEST(ChartMemory, checksPages) {
  EXPECT_FALSE(chartPage(std::string(32769, 'x')));
  const std::string reply = "02" + std::string(32768, 'x') + "behind";
  EXPECT_EQ(chartPage(reply).value_or(""), std::string(32768, 'x'));
  EXPECT_EQ(chartMemoryOf("\xFF"
                          "2"),
            (ChartMemory{4, 0x20001}));
  for (const char* other : {"24", "2\xFF", "", "2"})
    EXPECT_EQ(chartMemoryOf(other), (ChartMemory{12, 0x60001})) << other;
  EXPECT_TRUE(chartMemoryEnds("x" + std::string(20, '\xFF')));
  for (const char* before : {"", "x"}) EXPECT_FALSE(chartMemoryEnds(before + std::string(19, '\xFF')));
  EXPECT_EQ(hex2ascii(kChartPages[11]), "\x07\x80");
}

TEST(ChartMemory, decodesASample) {
  const LogTable<9> log = decodeChartMemory(chartMark("STR", kNoon) + chartSample() + "END", kTwoEast);
  const LogTable<9> expected = {{kNoonSerial + 10 * kSecond, 120.5, 1.5, -4, 0.25, 60, -0.5, 1.414, 232}};
  EXPECT_EQ(log, expected);
}

// A sample's columns 1 to 8 decoded the long way, through texts.
std::array<double, 8> slowSample(const std::string& block) {
  const auto field = [&](std::size_t at, std::size_t bytes, bool isSigned, double fullScale, int decimals) {
    return roundDecimals(unscaledFraction(block.substr(at, bytes), isSigned) * fullScale, decimals);
  };
  const float energy = static_cast<float>(unscaledFraction(block.substr(16, 4), false)) * 232.0f;
  return {field(0, 2, false, 512, 2),
          field(2, 2, false, 256, 3),
          field(4, 2, true, 262144, 1),
          field(6, 3, false, 65536, 3),
          field(9, 3, false, 8000, 2),
          field(12, 1, true, 2, 3),
          roundDecimals(bcdByte(static_cast<std::uint8_t>(block[14])) + field(15, 1, true, 1, 3), 3),
          numberAtStart(formatPicture(energy, "###0.0000"))};
}

TEST(ChartMemory, agreesWithTheLongWayOnAnySample) {
  std::mt19937 random(5);
  std::string stream = chartMark("STR", kNoon);
  std::vector<std::array<double, 8>> expected;
  for (int i = 0; i < 70000; ++i) {
    std::string block(20, '\0');
    for (char& c : block) c = static_cast<char>(random());
    block.replace(0, 2, high(i & 0xFFFF, 2));  // every value of the fields of 16 bits
    block.replace(2, 2, high(i & 0xFFFF, 2));
    block.replace(4, 2, high(i & 0xFFFF, 2));
    if (i % 2 == 0) block[9] = '\0';
    if (i % 3 > 0) block[16] = static_cast<char>(random() % static_cast<unsigned>(i % 3 * i % 7 + 1));
    if (block.find("\xFF\xFF\xFF") != std::string::npos || block.substr(0, 3) == "END") continue;
    expected.push_back(slowSample(block));
    stream += block;
  }
  const LogTable<9> log = decodeChartMemory(stream, kTwoEast);
  ASSERT_EQ(log.size(), expected.size());
  for (std::size_t r = 0; r < expected.size(); ++r)
    ASSERT_TRUE(std::equal(expected[r].begin(), expected[r].end(), log[r].begin() + 1)) << r;
}

TEST(ChartMemory, showsAGapInPowerAsAStep) {
  const std::string sample = chartSample();
  const std::string later = chartSample(100 * 128);
  const CalendarTime back{2013, 5, 1, 10, 30, 0};
  const LogTable<9> log =
      decodeChartMemory(chartMark("STR", kNoon) + sample + chartMark("PWR", back) + later +
                            chartMark("CDF", {2013, 5, 1, 9, 0, 0}) + later + "END",
                        kTwoEast);
  EXPECT_EQ(times(log), (std::vector<double>{10, 11, 1809, 1810, -3590}));
  const double volts[] = {120.5, 120.5, 120.5, 100, 100};
  for (std::size_t r = 0; r < 5; ++r) EXPECT_EQ(log[r][1], volts[r]);
  const LogTable<9> first = decodeChartMemory(chartMark("PWR", kNoon), kTwoEast);
  const LogTable<9> zeros = {{kSecond}, {kNoonSerial + 9 * kSecond}};
  EXPECT_EQ(first, zeros);
}

TEST(ChartMemory, endsWhereItMust) {
  const std::string start = chartMark("STR", kNoon) + chartSample();
  const std::string tails[] = {"END" + chartSample(), "\xFF\xFF\xFF" + chartSample(),
                               "STR" + std::string(6, '\xF0') + chartSample()};
  for (const std::string& tail : tails)
    EXPECT_EQ(decodeChartMemory(start + tail, kTwoEast).size(), 1u) << tail;
  for (std::size_t place = 0; place <= 17; ++place) {
    std::string sample = chartSample();
    sample.replace(place, 3, "\xFF\xFF\xFF");
    EXPECT_EQ(decodeChartMemory(start + sample + chartSample(), kTwoEast).size(), 1u) << place;
    sample[place + 1] = '\0';
    EXPECT_EQ(decodeChartMemory(start + sample + chartSample(), kTwoEast).size(), 3u) << place;
  }
}

TEST(ChartMemory, keepsTheRowsBeforeACut) {
  const std::string stream = chartMark("STR", kNoon) + chartSample() + chartSample() +
                             chartMark("PWR", kNoon) + chartSample() + "END";
  for (std::size_t cut = 0; cut <= stream.size(); ++cut) {
    const std::size_t rows = cut >= 78 ? 5 : cut >= 58 ? 4 : cut >= 49 ? 2 : cut >= 29 ? 1 : 0;
    const LogTable<9> log = decodeChartMemory(std::string_view(stream).substr(0, cut), kTwoEast);
    EXPECT_EQ(log.size(), rows) << cut;
  }
}

}  // namespace
}  // namespace zephon
