#include "protocol/limit_codes.h"

#include <gtest/gtest.h>

#include <bit>

#include "protocol/limit_registers.h"
#include "simulator/limits.h"

namespace zephon {
namespace {

using namespace editor;

// At most one bit in each half.
bool oneBitEach(int byte) {
  return std::popcount(byte & 0xF0U) <= 1 && std::popcount(byte & 0x0FU) <= 1;
}

// The device and the tool, which were written apart, read every byte alike; and what the tool writes for
// limits that a byte picks one by one is that byte and 48 more.
TEST(LimitCodes, EveryByteIsReadAsTheDeviceReadsItAndWrittenBack) {
  for (int i = 0; i < 0x20000; ++i) {
    const int rating = i < 0x10000 ? 120 : 240;
    const auto record = static_cast<std::uint8_t>(i >> 8), shutdown = static_cast<std::uint8_t>(i);
    const simulator::Limits theirs = simulator::limitsOf(simulator::LimitBytes{record, shutdown}, rating);
    const Limits l = limitsOfBytes(record, shutdown, static_cast<std::int16_t>(rating));
    ASSERT_TRUE(l.UVco == theirs.uvco && l.UVre == theirs.uvre && l.UVrs == theirs.uvrs &&
                l.OVrs == theirs.ovrs && l.OVre == theirs.ovre && l.OVco == theirs.ovco)
        << std::hex << i;
    if (!oneBitEach(record) || !oneBitEach(shutdown)) continue;
    const auto wire =
        limitWireBytes({double(l.OVco), double(l.OVre), 0, 0, double(l.UVre), double(l.UVco), 0});
    ASSERT_TRUE(wire && wire->records == static_cast<char>(record + 48) &&
                wire->cutoffs == static_cast<char>(shutdown + 48))
        << std::hex << i;
  }
  EXPECT_EQ(limitsOfBytes(0x30, 0x30, 120),
            (Limits{80, 100, 105, 130, 145, 135}));  // OVco: the rightmost bit
}

TEST(LimitCodes, AVoltageWithoutADigitIsLeftOutOfItsPair) {
  // -1: nothing can be written.
  const std::tuple<double, double, int> cases[] = {
      {155, 0, 0x31}, {145, 40, 0x34}, {160, 40, 0x0B}, {155, 40, -1}};
  for (const auto& [OVcoVolts, UVcoVolts, cutoffs] : cases) {
    const auto wire = limitWireBytes({OVcoVolts, 135, 0, 0, 100, UVcoVolts, 0});
    EXPECT_EQ(wire ? wire->cutoffs : -1, cutoffs) << OVcoVolts;
  }
}

TEST(LimitRegisters, ValuesToBytesAndBack) {
  // -1: nothing can be written.
  const std::tuple<std::size_t, double, std::int16_t, const char*, int> cases[] = {
      {OVrs, 219, 240, "1.JB3", 110},  // 109.5 goes to the even 110
      {OVrs, 219, 240, "1.JB2", 130}, {OVrs, 219, 240, "1.JD1", 130}, {OVrs, 210, 240, "1.KD1", 110},
      {OVco, 221, 240, "1.KD1", 110}, {UVrs, 115, 120, "1.KD1", 110}, {OLre, 40, 240, "1.KD1", 40},
      {OVco, 256, 120, "1.KD1", -1},  {UVco, -1, 120, "1.KD1", -1},   {OVco, 150, 0, "1.KD1", -1},
  };
  for (const auto& [which, value, nominal, firmware, byte] : cases) {
    LimitValues values = {150, 145, 140, 105, 100, 80, 25};
    values[which] = value;
    const auto bytes = limitRegisters(values, nominal, firmware);
    EXPECT_EQ(bytes ? (*bytes)[which] : -1, byte) << firmware << ' ' << value;
  }
  EXPECT_EQ(limitOfRegister(105, 240), 210);
  EXPECT_EQ(limitOfRegister(10, 150), 12);  // 12.5 goes to the even 12
  EXPECT_FALSE(limitOfRegister(255, 32767));
}

}  // namespace
}  // namespace zephon
