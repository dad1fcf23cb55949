#include "protocol/limit_editors.h"

#include <gtest/gtest.h>

#include <random>

#include "protocol/limit_coupling.h"
#include "protocol/limit_ranges.h"
#include "support/bench.h"

namespace zephon {
namespace {

using namespace editor;

TEST(LimitRanges, FollowTheDevice) {
  using Range = NumEdit::Range;
  const Range ov120{130, 160, 1}, uv120{0, 110, 1}, uvrs120{80, 110, 1}, list120{135, 160, 5};
  const Range low240{220, 300, 2}, high240{260, 300, 2}, uv240{0, 220, 2}, uvrs240{80, 220, 2};
  const Range list240{260, 300, 10}, uvre{140, 180, 10}, uvco{0, 170, 10}, amps{2, 40, 1}, start{1, 2, 3};
  const EditorRanges before = {start, start, start, start, start, start, amps};
  // Rating, line and firmware; OVco and UVco that the device holds.
  const std::tuple<std::int16_t, std::int16_t, const char*, std::int16_t, std::int16_t, EditorRanges>
      cases[] = {
          {120, 0, "1.AA0", 150, 80, {ov120, ov120, ov120, uvrs120, uv120, uv120, amps}},
          {120, 0, "1.KD1", 130, 110, {ov120, ov120, {125, 160, 1}, {80, 115, 1}, uv120, uv120, amps}},
          {120, 1, "2.00", 150, 80, {list120, list120, ov120, uvrs120, {80, 100, 5}, {0, 95, 5}, amps}},
          {240, 0, "1.JB3", 220, 220, {low240, low240, {210, 300, 2}, {80, 230, 2}, uv240, uv240, amps}},
          {240, 0, "1.JB3", 260, 160, {low240, low240, low240, uvrs240, uv240, uv240, amps}},
          {240, 0, "1.JB2", 280, 160, {high240, high240, high240, uvrs240, uv240, uv240, amps}},
          {240, 0, "1.JD1", 260, 160, {high240, high240, {250, 300, 2}, uvrs240, uv240, uv240, amps}},
          {240, 1, "1*14", 280, 140, {list240, list240, high240, uvrs240, uvre, uvco, amps}},
          {240, 1, "2*00", 280, 140, {list240, list240, low240, uvrs240, uvre, uvco, amps}},
          {208, 0, "1.KD1", 130, 110, before}};
  for (const auto& [nominal, line, firmware, OVco, UVco, ranges] : cases) {
    const Limits held = {UVco, 0, 0, 0, 0, OVco};
    EXPECT_EQ(limitRanges(before, {nominal, line, firmware, held}), ranges) << firmware << ' ' << OVco;
  }
}

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
  e.at(OVrs).edit(132);
  EXPECT_EQ(e.minimum(OVre), 132);
  e.at(UVco).edit(108);
  EXPECT_EQ(e.values(), (LimitValues{138, 138, 132, 108, 108, 108, 30}));
}

TEST(LimitCoupling, ADisabledEditorNeitherActsNorMoves) {
  Editors e(120, 1, {80, 100, 105, 140, 150, 150});
  e.at(OVco).edit(135);
  EXPECT_EQ(e.values(), (LimitValues{135, 135, 140, 105, 100, 80, 30}));
  e.at(OVrs).setValue(150);
  EXPECT_EQ(e.minimum(OVre), 135);
}

TEST(LimitCoupling, StepsJumpOverTheGapsOfTheSecondLine) {
  // From, asked for, and come to; and the least that UVre can then be.
  const std::tuple<std::int16_t, std::size_t, double, double, double, double> cases[] = {
      {120, OVco, 150, 155, 160, 80}, {120, OVre, 160, 155, 150, 80}, {120, UVco, 0, 5, 80, 80},
      {120, UVco, 80, 75, 0, 80},     {120, UVco, 80, 85, 85, 85},    {240, UVco, 140, 130, 0, 140}};
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
      {120, 1, {95, 80, 105, 130, 160, 160}, {150, 135, 130, 105, 100, 0, 25}},
      {240, 1, {0, 140, 190, 250, 300, 300}, {260, 260, 250, 190, 180, 140, 25}},
      {240, 0, {220, 220, 220, 300, 300, 300}, {280, 270, 260, 190, 180, 160, 25}}};
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
