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
  Limiter world(Line::Orvantis, 240, {280, 270, 240, 192, 180, 160, 33});
  ASSERT_TRUE(setThresholds(world.main));
  EXPECT_EQ(world.writes(), (Commands{"s7", "\x8C", "s8", "\x87", "s9", "\x78", "s4", "\x50", "s5", "\x5A",
                                      "s6", "\x60", "sB", "\x21"}));
  EXPECT_EQ(world.main.setup.updateLimsBtn.offText(), world.main.dict[100]);
  world.device.clearLog();
  for (const auto member : kLimitEditors) (world.main.setup.*member).setValue(1);
  ASSERT_TRUE(getThresholds(world.main));
  EXPECT_EQ(world.commands(), (Commands{"gH", "gI", "gJ", "gM", "gL", "gK", "gZ"}));
  EXPECT_EQ(world.main.limits, (Limits{160, 180, 192, 240, 270, 280}));
  EXPECT_EQ(world.shown(), (LimitValues{280, 270, 240, 192, 180, 160, 33}));
}

TEST(Thresholds, TheSecondLineGetsTwoBytesAndTellsThemInItsMemory) {
  const struct {
    int rating;
    LimitValues values;  // the restore points as they come back
    Commands writes;
    int byte254, byte255;
  } cases[] = {
      {120, {150, 135, 140, 105, 100, 0, 0}, {"a", "1", "b", "0"}, 0x00, 0x01},
      {120, {160, 145, 140, 105, 80, 95, 0}, {"a", "\xB8", "b", "\x58"}, 0x28, 0x88},
      {240, {290, 300, 260, 190, 150, 150, 0}, {"a", "\x72", "b", "\xB4"}, 0x84, 0x42},
  };
  for (const auto& c : cases) {
    Limiter world(Line::Tessara, c.rating, c.values);
    ASSERT_TRUE(setThresholds(world.main));
    EXPECT_EQ(world.writes(), c.writes);
    EXPECT_EQ(world.device.device().image.at(254), c.byte254);
    EXPECT_EQ(world.device.device().image.at(255), c.byte255);
    ASSERT_TRUE(getThresholds(world.main));
    EXPECT_EQ(world.shown(), c.values);
    EXPECT_FALSE(world.main.setup.OVrsNumEdit.enabled() || world.main.setup.UVrsNumEdit.enabled());
  }
}

TEST(Thresholds, TheFirstRefusalEndsTheWriting) {
  const std::tuple<Line, const char*, std::size_t> cases[] = {
      {Line::Orvantis, "s9", 3}, {Line::Orvantis, "sB", 7}, {Line::Tessara, "a", 1}, {Line::Tessara, "b", 2}};
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

// The device would take the next command's first byte for the value.
TEST(Thresholds, ACommandIsNeverLeftWithoutItsValue) {
  Limiter world;
  world.stay(Page::Setup);
  world.later(20, [&] {
    EXPECT_FALSE(world.main.frame.measBtn.enabled());
    world.stay(Page::None);  // left all the same
  });
  EXPECT_FALSE(setThresholds(world.main));
  EXPECT_EQ(world.writes(), (Commands{"s7", "\x96"}));
  EXPECT_TRUE(world.main.frame.measBtn.enabled());
}

}  // namespace
}  // namespace zephon
