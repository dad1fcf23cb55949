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
    main.link.firmwareVersion = "1.KD1";
    main.limits = limits;
    for (const auto member : kLimitEditors) (main.setup.*member).setVisible(true);
    wireLimitCoupling(main);
    setLimitRanges(main, nominal);
    showLimits(main.setup, limits, 30, model);
  }
  NumEdit& at(std::size_t which) { return main.setup.*kLimitEditors[which]; }
  double minimum(std::size_t which) { return at(which).range().minimum; }
  double maximum(std::size_t which) { return at(which).range().maximum; }
  LimitValues values() const { return editorValues(main.setup); }
};

TEST(LimitCoupling, AnEditTakesItsNeighboursAlong) {
  Editors e(120, 0, {80, 100, 105, 140, 145, 150});
  e.at(OVco).edit(138);
  EXPECT_EQ(e.values(), (LimitValues{138, 138, 138, 105, 100, 80, 30}));
  EXPECT_EQ(e.maximum(OVre), 138);
  EXPECT_EQ(e.minimum(OVre), 138);  // set by OVrs on its own way down
  e.at(OVrs).edit(132);
  EXPECT_EQ(e.minimum(OVre), 132);
  e.at(UVco).edit(108);
  EXPECT_EQ(e.values(), (LimitValues{138, 138, 132, 108, 108, 108, 30}));
}

TEST(LimitCoupling, ADisabledEditorNeitherActsNorMoves) {
  Editors odd(120, 0, {110, 100, 90, 160, 140, 130});  // shown as the device says it, against all order
  EXPECT_EQ(odd.values(), (LimitValues{130, 140, 160, 90, 100, 110, 30}));
  Editors e(120, 1, {80, 100, 105, 140, 150, 150});
  e.at(OVco).edit(135);
  EXPECT_EQ(e.values(), (LimitValues{135, 135, 140, 105, 100, 80, 30}));
  e.at(OVrs).setValue(150);
  EXPECT_EQ(e.minimum(OVre), 135);
}

TEST(LimitCoupling, StepsJumpOverTheGapsOfTheSecondLine) {
  // From, asked for, and come to; and the least that UVre can then be.
  const std::tuple<std::int16_t, std::size_t, double, double, double, double> cases[] = {
      {120, OVco, 150, 155, 160, 80}, {120, OVco, 160, 155, 150, 80}, {120, OVre, 150, 155, 160, 80},
      {120, OVre, 160, 155, 150, 80}, {120, UVco, 0, 5, 80, 80},      {120, UVco, 80, 75, 0, 80},
      {120, UVco, 80, 85, 85, 85},    {240, UVco, 0, 10, 140, 140},   {240, UVco, 140, 130, 0, 140},
  };
  for (const auto& [nominal, which, from, asked, to, least] : cases) {
    Editors e(nominal, 1,
              nominal == 240 ? Limits{1, 180, 190, 260, 260, 300} : Limits{1, 100, 105, 140, 135, 160});
    e.at(which).setValue(from);
    e.at(which).edit(asked);
    EXPECT_EQ(e.at(which).value(), to) << from << ' ' << asked;
    EXPECT_EQ(e.minimum(UVre), least) << from << ' ' << asked;
  }
}

TEST(LimitCoupling, DefaultsFromAnyState) {
  const std::tuple<std::int16_t, std::int16_t, Limits, LimitValues> cases[] = {
      {120, 0, {109, 110, 110, 130, 130, 130}, {150, 145, 140, 105, 100, 80, 25}},
      {120, 0, {0, 0, 80, 160, 160, 160}, {150, 145, 140, 105, 100, 80, 25}},
      {120, 1, {95, 80, 105, 130, 160, 160}, {150, 135, 130, 105, 100, 0, 25}},
      {240, 0, {220, 220, 220, 300, 300, 300}, {280, 270, 260, 190, 180, 160, 25}},
      {240, 1, {0, 140, 190, 250, 300, 300}, {260, 260, 250, 190, 180, 140, 25}},
      {208, 0, {1, 2, 3, 4, 5, 6}, {6, 5, 4, 3, 2, 1, 25}},
  };
  for (const auto& [nominal, line, before, after] : cases) {
    Editors e(nominal, line, before);
    setDefaultLimits(e.main);
    EXPECT_EQ(e.values(), after) << nominal << ' ' << line << ' ' << before.OVco;
  }
}

TEST(LimitCoupling, WhateverTheUserDoesTheOrderHolds) {
  std::mt19937 random(7);
  for (const int line : {0, 1}) {
    Editors e(120, static_cast<std::int16_t>(line), {80, 100, 105, 140, 150, 150});
    e.at(OVco).edit(145);  // the ranges follow the editors from their first change on
    e.at(UVco).edit(85);
    e.at(UVrs).edit(109);
    for (int i = 0; i < 8000; ++i) {
      NumEdit& edited = e.at(random() % 6);
      const double step = edited.range().increment * (random() % 2 ? 1 : -1);
      edited.edit(random() % 3 == 0 ? edited.value() + step : 5.0 * double(random() % 34));
      const LimitValues v = e.values();
      ASSERT_TRUE(v[UVco] <= v[UVre] && v[UVre] <= v[UVrs] && v[OVre] <= v[OVco]) << line << ' ' << i;
      for (std::size_t k = 0; k < 6; ++k)
        ASSERT_TRUE(!e.at(k).enabled() || (v[k] >= e.minimum(k) && v[k] <= e.maximum(k))) << i << ' ' << k;
    }
  }
}

}  // namespace
}  // namespace zephon
