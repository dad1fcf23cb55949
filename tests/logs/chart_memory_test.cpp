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

TEST(ChartMemory, checksPages) {
  EXPECT_FALSE(chartPage(std::string(32769, 'x')));
  const std::string reply = "02" + std::string(32768, 'x') + "behind";
  EXPECT_EQ(chartPage(reply).value_or(""), std::string(32768, 'x'));
  EXPECT_EQ(chartMemoryOf("x2"), (ChartMemory{4, 0x20001}));
  for (const char* other : {"24", "", "2"})
    EXPECT_EQ(chartMemoryOf(other), (ChartMemory{12, 0x60001})) << other;
  EXPECT_TRUE(chartMemoryEnds("x" + std::string(20, '\xFF')));
  for (const char* before : {"", "x"}) EXPECT_FALSE(chartMemoryEnds(before + std::string(19, '\xFF')));
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
    for (const int field : {0, 2, 4}) block.replace(field, 2, high(i & 0xFFFF, 2));  // every value of 16 bits
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
  const double seconds[] = {10, 11, 1809, 1810, -3590};
  ASSERT_EQ(log.size(), std::size(seconds));
  for (std::size_t r = 0; r < log.size(); ++r)
    EXPECT_NEAR(log[r][0], kNoonSerial + seconds[r] * kSecond, kSecond / 1000) << r;
  EXPECT_TRUE(log[2][1] == 120.5 && log[3][1] == 100);
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
    EXPECT_EQ(decodeChartMemory(std::string_view(stream).substr(0, cut), kTwoEast).size(), rows) << cut;
  }
}

}  // namespace
}  // namespace zephon
