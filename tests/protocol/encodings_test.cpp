#include "protocol/encodings.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "protocol/scope_samples.h"
#include "support/log_bytes.h"

// What the bytes of readings and scope samples mean.

namespace zephon {
namespace {

using namespace std::string_literals;

// The same as by way of the bit text.
void expectDecodedByBits(std::uint32_t number, int bytes) {
  const std::string raw = testing_support::high(static_cast<int>(number), bytes);
  std::string bits;
  for (const char digit : ascii2hex(raw)) bits += hex2bin(digit);
  ASSERT_EQ(unscaledFraction(raw, false), binFraction(bits)) << bits;
  ASSERT_EQ(unscaledFraction(raw, true), bits[0] == '1' ? -binFraction(complement(bits)) : binFraction(bits));
}

TEST(Encodings, decodesFractions) {
  const std::tuple<std::string, bool, double> rows[] = {
      {"\x80\x00"s, false, 0.5},
      {"\x80\x00"s, true, -0.4999847412109375},
      {"\x7F"s, true, 0.49609375},
      {"\x01\x80\x00\x00"s, false, 1.5},
      {"\xFF\xFF\xFF\xFF"s, false, 256},  // rounded up while adding
      {"\x01\x00\x00\x01"s, false, 1},    // the last bit is lost in rounding
      {""s, true, 0},
      {"\x80\x00\x00\x00\x00"s, false, 0}};
  for (const auto& [raw, isSigned, value] : rows)
    EXPECT_EQ(unscaledFraction(raw, isSigned), value) << ascii2hex(raw);
  EXPECT_TRUE(std::signbit(unscaledFraction("\xFF\xFF", true)));
}

TEST(Encodings, decodesAsFastAsSlowly) {
  std::mt19937 random(1);
  for (std::uint32_t number = 0; number < 0x10000; ++number) {
    expectDecodedByBits(number, number < 0x100 ? 1 : 2);
    expectDecodedByBits(static_cast<std::uint32_t>(random()), number % 2 == 0 ? 3 : 4);
  }
}

TEST(Encodings, readsHexDecimalsAndBcdUpToTheFirstLetter) {
  EXPECT_EQ(hex2ascii("G14Z") + hex2ascii("b5F"), "\x00\x04\xB5\x0F"s);
  for (const auto& [text, number] : {std::pair{"a", 10}, {"F", 15}, {"12", 12}, {"g", 0}, {"99999", 0}})
    EXPECT_EQ(HexToDec(text), number) << text;
  EXPECT_EQ(decodeDecimal("\xF0"), 240);
  EXPECT_EQ(decodeDecimal("\x04\x01\x02"), 262) << "only the second last byte is weighed";
  for (const auto& [byte, number] : {std::pair{0x59, 59}, {0x1A, 1}, {0x0F, 0}, {0xA1, 0}, {0x99, 99}})
    EXPECT_EQ(bcdByte(static_cast<std::uint8_t>(byte)), number) << byte;
}

TEST(ScopeSamples, EveryCodeIsItsShareOfFullScale) {
  for (int code = -32768; code < 32768; ++code) {
    const auto low = static_cast<char>(code);
    ASSERT_EQ(scopeAmperes(static_cast<char>(code >> 8), low), code / 128.0);
    ASSERT_EQ(scopeVolts(low), 4.0 * static_cast<signed char>(low));
  }
}

TEST(ScopeSamples, AreFoundBehindTheMark) {
  using Values = std::vector<double>;
  const std::tuple<int, std::string, std::size_t, Values, Values, Values> rows[] = {
      {1, "VV\x01\xFF\x7F"s, 3, {4, -4, 508}, {}, {}},
      {1, "VV\x01\xFF\x7F"s, 2, {4, -4}, {}, {}},
      {1, "xyVV\x01"s, 3, {4}, {}, {}},          // strays ahead push the last ones out
      {1, "AA\x01\xFF"s, 2, {260, 4}, {}, {}},   // no mark: from the second character on
      {1, "VVVV"s, 4, {344, 344}, {}, {}},       // the first mark counts
      {2, "AA\x01\x40\xFF"s, 2, {}, {2.5}, {}},  // half a sample is none
      {3, "VA\x02\x01\x40\xFE\xFF\x80"s, 2, {8, -8}, {2.5, -1}, {20, 8}},
      {3, "VA\x02\x01"s, 2, {}, {}, {}},
      {2, "A"s, 2, {}, {}, {}}};
  for (const auto& [mode, gathered, most, volts, amperes, watts] : rows) {
    const ScopeSamples samples = decodeCapture(gathered, mode, most);
    EXPECT_EQ(samples.volts, volts) << gathered;
    EXPECT_EQ(samples.amperes, amperes) << gathered;
    EXPECT_EQ(samples.watts, watts) << gathered;
  }
}

}  // namespace
}  // namespace zephon
