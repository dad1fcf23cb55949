#include "protocol/thresholds.h"

#include <gtest/gtest.h>

#include "protocol/limit_editors.h"
#include "support/bench.h"

namespace zephon {
namespace {

using simulator::FaultKind;
using simulator::Line;
using simulator::makeProfile;
using testing_support::World;
using Commands = std::vector<std::string>;

void type(World& world, const LimitValues& values) {
  for (std::size_t i = 0; i < values.size(); ++i) (world.main.setup.*kLimitEditors[i]).setValue(values[i]);
}

TEST(GetThresholds, ReadsTheRegistersInTheirOrder) {
  World world(makeProfile(Line::Orvantis, 240));
  world.device.device().registers = {70, 81, 92, 113, 124, 135, 26};
  world.main.setup.OVcoNumEdit.setValue(1);
  ASSERT_TRUE(getThresholds(world.main));
  EXPECT_EQ(world.commands(), (Commands{"gH", "gI", "gJ", "gM", "gL", "gK", "gZ"}));
  EXPECT_EQ(world.main.limits, (Limits{140, 162, 184, 226, 248, 270}));
  EXPECT_EQ(editorValues(world.main.setup), (LimitValues{270, 248, 226, 184, 162, 140, 26}));
  EXPECT_EQ(world.main.setup.OVcoNumEdit.range(), (NumEdit::Range{220, 300, 2}));
  EXPECT_TRUE(world.main.setup.OVrsNumEdit.enabled());
}

TEST(GetThresholds, AFailedReadLeavesTheScreenAlone) {
  for (const char* command : {"gH", "gK", "gZ"}) {
    World world;
    world.device.addFault({.kind = FaultKind::Silent, .only = command});
    EXPECT_FALSE(getThresholds(world.main)) << command;
    EXPECT_EQ(world.main.setup.UVreNumEdit.value(), 100) << command;
    EXPECT_EQ(world.main.limits.OVco != 0, command == std::string("gZ")) << command;
    EXPECT_EQ(world.main.exchange.lastFailure, ExchangeFailure::TimedOut) << command;
  }
}

TEST(GetThresholds, TheSecondLinesComeWithItsMemory) {
  World world(makeProfile(Line::Tessara, 120));
  world.device.device().image.poke(254, 0x24);
  world.device.device().image.poke(255, 0x18);
  ASSERT_TRUE(getThresholds(world.main));
  EXPECT_EQ(editorValues(world.main.setup), (LimitValues{135, 145, 130, 105, 85, 95, 0}));
  EXPECT_FALSE(world.main.setup.OVrsNumEdit.enabled());
  EXPECT_FALSE(world.main.setup.UVrsNumEdit.enabled());
  EXPECT_TRUE(world.main.setup.UVcoNumEdit.enabled());
}

TEST(SetThresholds, WritesARegisterAtATimeAndReadsBackTheSame) {
  World world(makeProfile(Line::Orvantis, 240));
  type(world, {280, 270, 240, 192, 180, 160, 33});
  ASSERT_TRUE(setThresholds(world.main));
  EXPECT_EQ(world.writes(), (Commands{"s7", "\x8C", "s8", "\x87", "s9", "\x78", "s4", "\x50", "s5", "\x5A",
                                      "s6", "\x60", "sB", "\x21"}));
  EXPECT_TRUE(world.device.noise().empty());
  EXPECT_EQ(world.main.setup.updateLimsBtn.offText(), world.main.dict[100]);
  ASSERT_TRUE(getThresholds(world.main));
  EXPECT_EQ(editorValues(world.main.setup), (LimitValues{280, 270, 240, 192, 180, 160, 33}));
}

TEST(SetThresholds, ARefusedLimitEndsTheWriting) {
  World world;
  type(world, {151, 146, 141, 104, 99, 79, 24});
  world.device.addFault({.kind = FaultKind::Refuse, .only = "s9"});
  EXPECT_FALSE(setThresholds(world.main));
  EXPECT_EQ(world.commands(), (Commands{"s7\x97", "s8\x92", "s9\x8D"}));
  EXPECT_TRUE(world.main.frame.measBtn.enabled());
}

TEST(SetThresholds, NothingGoesOutForAValueWithoutAByte) {
  World first;
  type(first, {256, 146, 141, 104, 99, 79, 24});
  EXPECT_FALSE(setThresholds(first.main));
  World second(makeProfile(Line::Tessara, 120));
  type(second, {150, 136, 141, 105, 99, 80, 0});
  EXPECT_FALSE(setThresholds(second.main));
  EXPECT_TRUE(first.writes().empty() && second.writes().empty());
}

TEST(SetThresholds, TheSecondLineGetsTwoBytes) {
  const struct {
    int rating;
    LimitValues values;
    Commands writes;
    int byte254, byte255;
  } cases[] = {
      {120, {150, 135, 140, 105, 100, 0, 0}, {"a", "1", "b", "0"}, 0x00, 0x01},
      {120, {160, 145, 140, 105, 80, 95, 0}, {"a", "\xB8", "b", "\x58"}, 0x28, 0x88},
      {240, {290, 300, 260, 190, 150, 150, 0}, {"a", "\x72", "b", "\xB4"}, 0x84, 0x42},
  };
  for (const auto& c : cases) {
    World world(makeProfile(Line::Tessara, c.rating));
    type(world, c.values);
    ASSERT_TRUE(setThresholds(world.main));
    EXPECT_EQ(world.writes(), c.writes);
    EXPECT_EQ(world.device.device().image.at(254), c.byte254);
    EXPECT_EQ(world.device.device().image.at(255), c.byte255);
  }
}

TEST(SetThresholds, AWrongEchoIsARefusal) {
  for (const char* command : {"a", "b"}) {
    World world(makeProfile(Line::Tessara, 120));
    type(world, {150, 135, 140, 105, 100, 0, 0});
    world.device.addFault({.kind = FaultKind::Refuse, .only = command});
    EXPECT_FALSE(setThresholds(world.main)) << command;
    EXPECT_EQ(world.commands().size(), command == std::string("a") ? 1U : 2U);
  }
}

// Whoever presses a page button between a command and its value finds it held: the device would take the next
// command's first byte for the value.
TEST(SetThresholds, HoldsThePageButtonsBetweenACommandAndItsValue) {
  World world;
  world.stay(Page::Setup);
  world.later(20, [&] {
    EXPECT_FALSE(world.main.frame.measBtn.enabled());
    world.stay(Page::None);  // left all the same
  });
  EXPECT_FALSE(setThresholds(world.main));
  EXPECT_EQ(world.writes(), (Commands{"s7", "\x96"}));
  EXPECT_TRUE(world.main.frame.measBtn.enabled());
}

TEST(SetThresholds, NoValueGoesOutBehindALostCommand) {
  World world;
  world.line.failNext(MemoryLine::Call::Write, 5);
  EXPECT_FALSE(setThresholds(world.main));
  EXPECT_TRUE(world.writes().empty());
}

}  // namespace
}  // namespace zephon
