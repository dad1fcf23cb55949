#include "protocol/limit_codes.h"

#include <gtest/gtest.h>

#include "protocol/limit_registers.h"
#include "simulator/limits.h"

namespace zephon {
namespace {

LimitValues valuesOf(const Limits& l) {
  return {double(l.OVco), double(l.OVre), double(l.OVrs), double(l.UVrs), double(l.UVre), double(l.UVco), 0};
}

TEST(LimitCodes, BytesToLimits) {
  const struct {
    int byte254, byte255;
    std::int16_t nominal;
    Limits limits;  // UVco, UVre, UVrs, OVrs, OVre, OVco
  } cases[] = {
      {0x00, 0x00, 120, {80, 100, 105, 140, 135, 150}},  {0x00, 0x00, 240, {140, 180, 190, 250, 260, 260}},
      {0x00, 0x30, 120, {80, 100, 105, 130, 135, 135}},  // shutdown: the rightmost bit counts
      {0x30, 0x00, 120, {80, 100, 105, 140, 145, 150}},  // record: the leftmost
      {0x0C, 0x0C, 240, {160, 140, 190, 250, 260, 260}}, {0x48, 0x81, 120, {0, 80, 105, 140, 150, 160}},
      {0x12, 0x28, 120, {95, 90, 105, 135, 140, 140}},   {0x84, 0x14, 240, {160, 150, 190, 260, 300, 270}},
  };
  for (const auto& c : cases) {
    const auto got =
        limitsOfBytes(static_cast<std::uint8_t>(c.byte254), static_cast<std::uint8_t>(c.byte255), c.nominal);
    EXPECT_EQ(got, c.limits) << std::hex << c.byte254 << ' ' << c.byte255 << std::dec << ' ' << c.nominal;
  }
}

// The device and the tool, which were written apart, read every byte alike.
TEST(LimitCodes, AgreeWithTheDevice) {
  for (const int rating : {120, 240}) {
    for (int pair = 0; pair < 0x10000; ++pair) {
      const auto record = static_cast<std::uint8_t>(pair >> 8);
      const auto shutdown = static_cast<std::uint8_t>(pair);
      const simulator::Limits theirs = simulator::limitsOf(simulator::LimitBytes{record, shutdown}, rating);
      const Limits ours = limitsOfBytes(record, shutdown, static_cast<std::int16_t>(rating));
      ASSERT_TRUE(ours.UVco == theirs.uvco && ours.UVre == theirs.uvre && ours.UVrs == theirs.uvrs &&
                  ours.OVrs == theirs.ovrs && ours.OVre == theirs.ovre && ours.OVco == theirs.ovco)
          << std::hex << pair << std::dec << ' ' << rating;
    }
  }
}

TEST(LimitCodes, EveryOneHotPairGoesBackToItsByteAnd48More) {
  for (const std::int16_t nominal : std::initializer_list<std::int16_t>{120, 240}) {
    for (const int left : {0, 1, 2, 4, 8}) {
      for (const int right : {0, 1, 2, 4, 8}) {
        const auto byte = static_cast<std::uint8_t>(left * 16 + right);
        const auto wire = limitWireBytes(valuesOf(limitsOfBytes(byte, byte, nominal)));
        ASSERT_TRUE(wire);
        EXPECT_EQ(wire->cutoffs, static_cast<char>(byte + 48)) << int(byte) << ' ' << nominal;
        EXPECT_EQ(wire->records, static_cast<char>(byte + 48)) << int(byte) << ' ' << nominal;
      }
    }
  }
}

TEST(LimitCodes, AVoltageWithoutADigitIsLeftOutOfItsPair) {
  LimitValues values = {155, 135, 140, 105, 100, 0, 0};
  EXPECT_EQ(limitWireBytes(values)->cutoffs, '\x31');
  values = {160, 135, 140, 105, 100, 40, 0};
  EXPECT_EQ(limitWireBytes(values)->cutoffs, '\x0B');
  values = {145, 135, 140, 105, 100, 40, 0};
  EXPECT_EQ(limitWireBytes(values)->cutoffs, '\x34');
  values = {155, 135, 140, 105, 100, 40, 0};
  EXPECT_FALSE(limitWireBytes(values));
}

TEST(LimitRegisters, ValuesToBytes) {
  const LimitValues ordinary = {150, 145, 140, 105, 100, 80, 25};
  const auto with = [&](std::size_t which, double value) {
    LimitValues values = ordinary;
    values[which] = value;
    return values;
  };
  const struct {
    LimitValues values;
    std::int16_t nominal;
    const char* firmware;
    std::size_t which;
    int byte;  // -1: nothing can be written
  } cases[] = {
      {with(editor::OVrs, 219), 240, "1.JB3", editor::OVrs, 110},  // 109.5 goes to the even 110
      {with(editor::OVrs, 219), 240, "1.JB2", editor::OVrs, 130},
      {with(editor::OVrs, 219), 240, "1.JD1", editor::OVrs, 130},
      {with(editor::OVrs, 219), 240, "1.KD1", editor::OVrs, 110},
      {with(editor::OVco, 221), 240, "1.KD1", editor::OVco, 110},
      {with(editor::OVco, 223), 240, "1.KD1", editor::OVco, 112},
      {with(editor::UVrs, 115), 120, "1.KD1", editor::UVrs, 110},
      {with(editor::OLre, 40), 240, "1.KD1", editor::OLre, 40},
      {with(editor::OVco, 255), 120, "1.KD1", editor::OVco, 255},
      {with(editor::OVco, 256), 120, "1.KD1", editor::OVco, -1},
      {with(editor::UVco, -1), 120, "1.KD1", editor::UVco, -1},
      {with(editor::OLre, 1e6), 120, "1.KD1", editor::OLre, -1},
      {ordinary, 0, "1.KD1", editor::OVco, -1},
  };
  for (const auto& c : cases) {
    const auto bytes = limitRegisters(c.values, c.nominal, c.firmware);
    EXPECT_EQ(bytes ? (*bytes)[c.which] : -1, c.byte) << c.firmware << ' ' << c.values[c.which];
  }
}

TEST(LimitRegisters, BytesToVolts) {
  EXPECT_EQ(limitOfRegister(105, 120), 105);
  EXPECT_EQ(limitOfRegister(105, 240), 210);
  EXPECT_EQ(limitOfRegister(85, 208), 147);
  EXPECT_EQ(limitOfRegister(10, 150), 12);  // 12.5 goes to the even 12
  EXPECT_FALSE(limitOfRegister(255, 32767));
}

}  // namespace
}  // namespace zephon
