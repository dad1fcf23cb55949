#include "protocol/scope_samples.h"

#include <gtest/gtest.h>

#include "protocol/encodings.h"

namespace zephon {
namespace {

using namespace std::string_literals;

std::string bitsOf(std::string_view bytes) {
  std::string bits;
  for (const char digit : ascii2hex(bytes)) bits += hex2bin(digit);
  return bits;
}

// A sample by its bits: a set first one makes it negative, one step below the complement.
double byBits(std::string_view bytes, double step, double fullScale) {
  const std::string bits = bitsOf(bytes);
  return bits[0] == '1' ? (step + binFraction(complement(bits))) * -fullScale : binFraction(bits) * fullScale;
}

TEST(ScopeSamples, EveryCodeIsItsFractionOfFullScale) {
  for (int code = 0; code < 65536; ++code) {
    const char bytes[] = {static_cast<char>(code >> 8), static_cast<char>(code)};
    ASSERT_EQ(scopeAmperes(bytes[0], bytes[1]), byBits({bytes, 2}, 0x1p-16, 512)) << code;
    const char low = bytes[1];
    ASSERT_EQ(scopeVolts(low), byBits({&low, 1}, 0x1p-8, 1024)) << code;
  }
  EXPECT_EQ(scopeVolts('\xFF'), -4);
  EXPECT_EQ(scopeVolts('\x80'), -512);
  EXPECT_EQ(scopeAmperes('\x80', '\0'), -256);
}

TEST(ScopeSamples, TimeFactorsAboveOneLengthenTheCapture) {
  const struct {
    double xScale;
    std::size_t samples, commands, bytesOfBoth;
  } rows[] = {
      {0.125, 256, 1, 770}, {0.5, 256, 1, 770}, {1, 256, 1, 770}, {2, 512, 2, 1538}, {4, 1024, 4, 3074}};
  for (const auto& row : rows) {
    EXPECT_EQ(captureSamples(row.xScale), row.samples);
    EXPECT_EQ(captureCommands(row.xScale), row.commands);
    EXPECT_EQ(captureBytes(*captureKind(3), row.xScale), row.bytesOfBoth);
  }
  for (int mode = 1; mode <= 3; ++mode) {
    const CaptureKind& kind = *captureKind(mode);
    EXPECT_EQ(static_cast<std::size_t>(kind.command->replyBytes), captureBytes(kind, 1));
    EXPECT_DOUBLE_EQ(samplePeriodMs(kind) * kind.samplesAcross, 60);
  }
  EXPECT_EQ(captureKind(0), nullptr);
  EXPECT_EQ(captureKind(4), nullptr);
}

TEST(ScopeSamples, AreFoundBehindTheMark) {
  using Values = std::vector<double>;
  const struct {
    int mode;
    std::string gathered;
    std::size_t most;
    Values volts, amperes, watts;
  } rows[] = {
      {1, "VV\x01\xFF\x7F"s, 3, {4, -4, 508}, {}, {}},
      {1, "VV\x01\xFF\x7F"s, 2, {4, -4}, {}, {}},
      {1, "xyVV\x01"s, 3, {4}, {}, {}},          // strays ahead push the last ones out
      {1, "AA\x01\xFF"s, 2, {260, 4}, {}, {}},   // no mark: from the second character on
      {1, "VVVV"s, 4, {344, 344}, {}, {}},       // the first mark counts
      {2, "AA\x01\x40\xFF"s, 2, {}, {2.5}, {}},  // half a sample is none
      {3, "VA\x02\x01\x40\xFE\xFF\x80"s, 2, {8, -8}, {2.5, -1}, {20, 8}},
      {3, "VA\x02\x01"s, 2, {}, {}, {}},
      {1, ""s, 2, {}, {}, {}},
      {2, "A"s, 2, {}, {}, {}},
      {0, "VV\x01"s, 2, {}, {}, {}},
  };
  for (const auto& row : rows) {
    const ScopeSamples samples = decodeCapture(row.gathered, row.mode, row.most);
    EXPECT_EQ(samples.volts, row.volts) << row.gathered;
    EXPECT_EQ(samples.amperes, row.amperes) << row.gathered;
    EXPECT_EQ(samples.watts, row.watts) << row.gathered;
  }
}

}  // namespace
}  // namespace zephon
