#include "protocol/limit_coupling.h"

#include <gtest/gtest.h>

#include <random>

#include "protocol/limit_editors.h"
#include "protocol/limit_ranges.h"
#include "support/bench.h"

namespace zephon {
namespace {

using namespace editor;

class Editors : public testing_support::Bench {
 public:
  Editors(std::int16_t nominal, std::int16_t model, const Limits& limits) {
    main.link.nominalVolts = nominal;
    main.link.modelLine = model;
    main.link.firmwareVersion = model == 0 ? "1.KD1" : "2.00";
    main.limits = limits;
    for (const auto member : kLimitEditors) (main.setup.*member).setVisible(true);
    wireLimitCoupling(main);
    setLimitRanges(main, nominal);
    showLimits(main.setup, limits, 30, model);
  }
  NumEdit& at(std::size_t which) { return main.setup.*kLimitEditors[which]; }
  LimitValues values() const { return editorValues(main.setup); }
  bool inRange(std::size_t which) {
    return at(which).value() >= at(which).range().minimum && at(which).value() <= at(which).range().maximum;
  }
};

const Limits kFirst120 = {80, 100, 105, 140, 145, 150};
const Limits kSecond120 = {80, 100, 105, 140, 135, 150};
const Limits kSecond240 = {140, 180, 190, 250, 260, 260};

TEST(LimitCoupling, ShowingLimitsMovesNothingElse) {
  Editors e(120, 0, {110, 100, 90, 160, 140, 130});  // against all order, as the device says it
  EXPECT_EQ(e.values(), (LimitValues{130, 140, 160, 90, 100, 110, 30}));
}

TEST(LimitCoupling, AnEditNarrowsTheNeighboursAndTakesThemAlong) {
  Editors e(120, 0, kFirst120);
  e.at(OVco).edit(138);
  EXPECT_EQ(e.values(), (LimitValues{138, 138, 138, 105, 100, 80, 30}));
  EXPECT_EQ(e.at(OVre).range().maximum, 138);
  EXPECT_EQ(e.at(OVre).range().minimum, 138);  // set by OVrs on its own way down
  e.at(OVrs).edit(132);
  EXPECT_EQ(e.at(OVre).range().minimum, 132);
  e.at(UVco).edit(108);
  EXPECT_EQ(e.values(), (LimitValues{138, 138, 132, 108, 108, 108, 30}));
  e.at(UVrs).edit(80);  // its minimum has become UVco's value
  EXPECT_EQ(e.at(UVrs).value(), 108);
}

TEST(LimitCoupling, ADisabledEditorNeitherActsNorMoves) {
  Editors e(120, 1, {80, 100, 105, 140, 150, 150});
  EXPECT_FALSE(e.at(OVrs).enabled());
  e.at(OVco).edit(135);
  EXPECT_EQ(e.at(OVre).value(), 135);
  EXPECT_EQ(e.at(OVrs).value(), 140);
  EXPECT_EQ(e.at(OVrs).range().maximum, 135);
  e.at(OVrs).setValue(150);
  EXPECT_EQ(e.at(OVre).range().minimum, 135);
}

TEST(LimitCoupling, StepsJumpOverTheGapsOfTheSecondLine) {
  const struct {
    std::int16_t nominal, line;
    std::size_t which;
    double from, step, to;
  } cases[] = {
      {120, 1, OVco, 150, 155, 160}, {120, 1, OVco, 160, 155, 150}, {120, 1, OVre, 150, 155, 160},
      {120, 1, OVre, 160, 155, 150}, {120, 1, OVco, 145, 150, 150}, {120, 1, UVco, 0, 5, 80},
      {120, 1, UVco, 80, 75, 0},     {120, 1, UVco, 85, 80, 80},    {240, 1, UVco, 0, 10, 140},
      {240, 1, UVco, 140, 130, 0},   {240, 1, OVco, 280, 290, 290}, {120, 0, OVco, 150, 155, 155},
      {120, 0, UVco, 0, 5, 5},
  };
  for (const auto& c : cases) {
    Limits limits =
        c.nominal == 240 ? Limits{140, 180, 190, 260, 260, 300} : Limits{80, 100, 105, 140, 135, 160};
    Editors e(c.nominal, c.line, limits);
    e.at(c.which).setValue(c.from);
    e.at(c.which).edit(c.step);
    EXPECT_EQ(e.at(c.which).value(), c.to) << c.nominal << ' ' << c.line << ' ' << c.from << ' ' << c.step;
  }
}

TEST(LimitCoupling, NoJumpLeavesTheRange) {
  Editors e(120, 1, {80, 100, 105, 140, 150, 145});
  e.at(OVco).edit(155);  // typed: there is no such digit
  e.at(OVre).edit(150);
  e.at(OVre).edit(155);
  EXPECT_EQ(e.at(OVre).value(), 155);
}

TEST(LimitCoupling, TheFloorOfUVreRisesAgain) {
  Editors at120(120, 1, kSecond120);
  at120.at(UVco).edit(0);
  EXPECT_EQ(at120.at(UVre).range().minimum, 80);
  EXPECT_EQ(at120.at(UVrs).range().minimum, 0);
  Editors at240(240, 1, kSecond240);
  at240.at(UVco).edit(0);
  EXPECT_EQ(at240.at(UVre).range().minimum, 140);
  at240.at(UVco).edit(170);
  EXPECT_EQ(at240.at(UVre).range().minimum, 170);
  Editors first(120, 0, kFirst120);
  first.at(UVco).edit(0);
  EXPECT_EQ(first.at(UVre).range().minimum, 0);
}

TEST(LimitCoupling, DefaultsFromAnyState) {
  const struct {
    std::int16_t nominal, line;
    Limits before;
    LimitValues after;
  } cases[] = {
      {120, 0, {109, 110, 110, 130, 130, 130}, {150, 145, 140, 105, 100, 80, 25}},
      {120, 0, {0, 0, 80, 160, 160, 160}, {150, 145, 140, 105, 100, 80, 25}},
      {120, 1, {95, 80, 105, 130, 160, 160}, {150, 135, 130, 105, 100, 0, 25}},
      {240, 0, {220, 220, 220, 300, 300, 300}, {280, 270, 260, 190, 180, 160, 25}},
      {240, 1, {0, 140, 190, 250, 300, 300}, {260, 260, 250, 190, 180, 140, 25}},
      {208, 0, {1, 2, 3, 4, 5, 6}, {6, 5, 4, 3, 2, 1, 25}},
  };
  for (const auto& c : cases) {
    Editors e(c.nominal, c.line, c.before);
    setDefaultLimits(e.main);
    EXPECT_EQ(e.values(), c.after) << c.nominal << ' ' << c.line << ' ' << c.before.OVco;
  }
  Editors second(120, 1, kSecond120);
  setDefaultLimits(second.main);
  EXPECT_EQ(second.at(UVre).range().minimum, 80);
}

TEST(LimitCoupling, WhateverTheUserDoesTheOrderHolds) {
  std::mt19937 random(7);
  for (const std::int16_t line : std::initializer_list<std::int16_t>{0, 1}) {
    Editors e(120, line, line == 0 ? kFirst120 : kSecond120);
    for (int i = 0; i < 20000; ++i) {
      const std::size_t which = random() % 6;
      const NumEdit::Range range = e.at(which).range();
      e.at(which).edit(random() % 3 == 0 ? e.at(which).value() + (random() % 2 ? 1 : -1) * range.increment
                                         : 5.0 * double(random() % 34));
      const LimitValues v = e.values();
      ASSERT_TRUE(v[UVco] <= v[UVre] && v[UVre] <= v[UVrs] && v[OVre] <= v[OVco]) << line << ' ' << i;
      ASSERT_TRUE(line == 1 || v[OVrs] <= v[OVre]) << i;
      for (std::size_t k = 0; k < 6; ++k) ASSERT_TRUE(!e.at(k).enabled() || e.inRange(k)) << i << ' ' << k;
    }
  }
}

}  // namespace
}  // namespace zephon
