#include "protocol/thresholds.h"

#include <gtest/gtest.h>

#include <bit>

#include "protocol/limit_codes.h"
#include "protocol/limit_editors.h"
#include "protocol/limit_registers.h"
#include "simulator/limits.h"
#include "support/bench.h"

// The limits on the wire: their bytes of both lines, and how they are written and read back.

namespace zephon {
namespace {

using simulator::FaultKind;
using simulator::Line;
using simulator::makeProfile;
using testing_support::World;
using Commands = std::vector<std::string>;
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
      {OVco, 256, 120, "1.KD1", -1},  {UVco, -1, 120, "1.KD1", -1},   {OVco, 150, 0, "1.KD1", -1}};
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

class Limiter : public World {
 public:
  explicit Limiter(Line model = Line::Orvantis, int rating = 120,
                   const LimitValues& typed = {150, 145, 140, 105, 100, 80, 25})
      : World(makeProfile(model, rating)) {
    for (std::size_t i = 0; i < typed.size(); ++i) (main.setup.*kLimitEditors[i]).setValue(typed[i]);
  }
  LimitValues shown() const { return editorValues(main.setup); }
};

TEST(Thresholds, TheFirstLineWritesARegisterAtATimeAndReadsThemBack) {
  const LimitValues typed = {280, 270, 240, 192, 180, 160, 33};
  Limiter world(Line::Orvantis, 240, typed);
  ASSERT_TRUE(setThresholds(world.main));
  EXPECT_EQ(world.writes(), (Commands{"s7", "\x8C", "s8", "\x87", "s9", "\x78", "s4", "\x50", "s5", "\x5A",
                                      "s6", "\x60", "sB", "\x21"}));
  world.device.clearLog();
  for (const auto member : kLimitEditors) (world.main.setup.*member).setValue(1);
  ASSERT_TRUE(getThresholds(world.main));
  EXPECT_EQ(world.commands(), (Commands{"gH", "gI", "gJ", "gM", "gL", "gK", "gZ"}));
  EXPECT_EQ(world.main.limits, (Limits{160, 180, 192, 240, 270, 280}));
  EXPECT_EQ(world.shown(), typed);
}

TEST(Thresholds, TheSecondLineGetsTwoBytesAndTellsThemInItsMemory) {
  // The restore points are as they come back.
  const std::tuple<int, LimitValues, Commands, int, int> cases[] = {
      {120, {160, 145, 140, 105, 80, 95, 0}, {"a", "\xB8", "b", "\x58"}, 0x28, 0x88},
      {240, {290, 300, 260, 190, 150, 150, 0}, {"a", "\x72", "b", "\xB4"}, 0x84, 0x42}};
  for (const auto& [rating, values, writes, byte254, byte255] : cases) {
    Limiter world(Line::Tessara, rating, values);
    ASSERT_TRUE(setThresholds(world.main));
    EXPECT_EQ(world.writes(), writes);
    EXPECT_EQ(world.device.device().image.at(254), byte254);
    EXPECT_EQ(world.device.device().image.at(255), byte255);
    ASSERT_TRUE(getThresholds(world.main));
    EXPECT_EQ(world.shown(), values);
  }
}

TEST(Thresholds, TheFirstRefusalEndsTheWriting) {
  const std::tuple<Line, const char*, std::size_t> cases[] = {
      {Line::Orvantis, "s9", 3}, {Line::Tessara, "a", 1}, {Line::Tessara, "b", 2}};
  for (const auto& [line, refused, heard] : cases) {
    Limiter world(line);
    world.device.addFault({.kind = FaultKind::Refuse, .only = refused});
    EXPECT_FALSE(setThresholds(world.main)) << refused;
    EXPECT_EQ(world.commands().size(), heard) << refused;
  }
}

TEST(Thresholds, NothingGoesOutForAValueWithoutAByteOrBehindALostCommand) {
  Limiter first(Line::Orvantis, 120, {256, 145, 140, 105, 100, 80, 25});
  Limiter second(Line::Tessara, 120, {150, 136, 140, 105, 99, 80, 25});
  Limiter lost;
  lost.line.failNext(MemoryLine::Call::Write, 5);
  for (Limiter* world : {&first, &second, &lost}) {
    EXPECT_FALSE(setThresholds(world->main));
    EXPECT_TRUE(world->writes().empty());
  }
}

}  // namespace
}  // namespace zephon
