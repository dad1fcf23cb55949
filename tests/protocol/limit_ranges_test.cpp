#include "protocol/limit_ranges.h"

#include <gtest/gtest.h>

namespace zephon {
namespace {

using Range = NumEdit::Range;

TEST(LimitRanges, FollowTheDevice) {
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
          {208, 0, "1.KD1", 130, 110, before},
      };
  for (const auto& [nominal, line, firmware, OVco, UVco, ranges] : cases) {
    const Limits held = {UVco, 0, 0, 0, 0, OVco};
    EXPECT_EQ(limitRanges(before, {nominal, line, firmware, held}), ranges) << firmware << ' ' << OVco;
  }
}

}  // namespace
}  // namespace zephon
