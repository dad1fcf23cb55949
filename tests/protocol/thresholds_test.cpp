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
  const auto at = [&](std::size_t write) { return Millis(world.line.written()[write].at).count(); };
  EXPECT_EQ(at(1), 50);
  EXPECT_GE(at(2), at(1) + 50) << "a pause before the next one";
  world.device.clearLog();
  for (const auto member : kLimitEditors) (world.main.setup.*member).setValue(1);
  ASSERT_TRUE(getThresholds(world.main));
  EXPECT_EQ(world.commands(), (Commands{"gH", "gI", "gJ", "gM", "gL", "gK", "gZ"}));
  EXPECT_EQ(world.main.limits, (Limits{160, 180, 192, 240, 270, 280}));
  EXPECT_EQ(world.shown(), (LimitValues{280, 270, 240, 192, 180, 160, 33}));
}

TEST(Thresholds, TheSecondLineGetsTwoBytesAndTellsThemInItsMemory) {
  // The restore points are as they come back.
  const std::tuple<int, LimitValues, Commands, int, int> cases[] = {
      {120, {160, 145, 140, 105, 80, 95, 0}, {"a", "\xB8", "b", "\x58"}, 0x28, 0x88},
      {240, {290, 300, 260, 190, 150, 150, 0}, {"a", "\x72", "b", "\xB4"}, 0x84, 0x42},
  };
  for (const auto& [rating, values, writes, byte254, byte255] : cases) {
    Limiter world(Line::Tessara, rating, values);
    ASSERT_TRUE(setThresholds(world.main));
    EXPECT_EQ(world.writes(), writes);
    EXPECT_EQ(world.device.device().image.at(254), byte254);
    EXPECT_EQ(world.device.device().image.at(255), byte255);
    ASSERT_TRUE(getThresholds(world.main));
    EXPECT_EQ(world.shown(), values);
    EXPECT_FALSE(world.main.setup.OVrsNumEdit.enabled() || world.main.setup.UVrsNumEdit.enabled());
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
