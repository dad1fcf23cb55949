#include "protocol/encodings.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "support/log_bytes.h"

namespace zephon {
namespace {

using namespace std::string_literals;

// The decoding by way of its bit text.
double fractionByBits(const std::string& raw, bool isSigned) {
  std::string bits;
  for (const char digit : ascii2hex(raw)) bits += hex2bin(digit);
  return isSigned && bits.front() == '1' ? binFraction(complement(bits)) * -1.0f : binFraction(bits);
}

void expectSameBits(std::uint32_t number, int bytes) {
  const std::string raw = testing_support::high(static_cast<int>(number), bytes);
  for (const bool isSigned : {false, true}) {
    ASSERT_EQ(std::bit_cast<std::uint64_t>(unscaledFraction(raw, isSigned)),
              std::bit_cast<std::uint64_t>(fractionByBits(raw, isSigned)))
        << ascii2hex(raw) << ' ' << isSigned;
  }
}

TEST(Encodings, decodesFractions) {
  const std::tuple<std::string, bool, double> rows[] = {
      {"\x80\x00"s, false, 0.5},
      {"\x80\x00"s, true, -0.4999847412109375},
      {"\x7F"s, true, 0.49609375},
      {"\x01\x80\x00\x00"s, false, 1.5},
      {"\xFF\xFF\xFF\xFF"s, false, 256},  // rounded up while adding
      {"\x01\x00\x00\x01"s, false, 1},    // the last bit is lost in rounding
      {"\x00\x00\x00\x01"s, false, 0x1p-24},
      {""s, true, 0},
      {"\x80\x00\x00\x00\x00"s, false, 0}};
  for (const auto& [raw, isSigned, value] : rows)
    EXPECT_EQ(unscaledFraction(raw, isSigned), value) << ascii2hex(raw);
  EXPECT_TRUE(std::signbit(unscaledFraction("\xFF\xFF", true)));
}

TEST(Encodings, decodesAsFastAsSlowly) {
  for (std::uint32_t number = 0; number < 0x10000; ++number) expectSameBits(number, number < 0x100 ? 1 : 2);
  std::mt19937 random(1);
  for (int i = 0; i < 20000; ++i) {
    expectSameBits(static_cast<std::uint32_t>(random()), i % 2 == 0 ? 3 : 4);
    expectSameBits(static_cast<std::uint32_t>(random()) | 0x00FFFF00, 4);
  }
}

TEST(Encodings, convertsBetweenHexBitsAndText) {
  EXPECT_EQ(ascii2hex("\x0F\xA0Z"), "0FA05A");
  const std::pair<const char*, std::string> hexTexts[] = {
      {"0200", "\x02\x00"s}, {"b5F", "\xB5\x0F"}, {"G14Z", "\x00\x04"s}};
  for (const auto& [hex, text] : hexTexts) EXPECT_EQ(hex2ascii(hex), text) << hex;
  EXPECT_EQ(std::string(hex2bin('F')) + std::string(hex2bin(' ')) + std::string(hex2bin('a')), "1111 ");
  for (const auto& [text, number] : {std::pair{"a", 10}, {"F", 15}, {"12", 12}, {"g", 0}, {"99999", 0}})
    EXPECT_EQ(HexToDec(text), number) << text;
}

TEST(Encodings, readsDecimalsAndBcdUpToTheFirstLetter) {
  EXPECT_EQ(decodeDecimal("\xF0"), 240);
  EXPECT_EQ(decodeDecimal("\x04\x01\x02"), 262) << "only the second last byte is weighed";
  for (const auto& [byte, number] : {std::pair{0x59, 59}, {0x1A, 1}, {0x0F, 0}, {0xA1, 0}, {0x99, 99}})
    EXPECT_EQ(bcdByte(static_cast<std::uint8_t>(byte)), number) << byte;
}

}  // namespace
}  // namespace zephon
