#include "protocol/limit_ranges.h"

#include <gtest/gtest.h>

namespace zephon {
namespace {

using Range = NumEdit::Range;

const EditorRanges kStart = {{{1, 2, 3}, {1, 2, 3}, {1, 2, 3}, {1, 2, 3}, {1, 2, 3}, {1, 2, 3}, {2, 40, 1}}};

struct Case {
  const char* about;
  RangeCase device;
  EditorRanges ranges;  // OVco, OVre, OVrs, UVrs, UVre, UVco, OLre
};

RangeCase device(std::int16_t nominal, std::int16_t line, const char* firmware, std::int16_t OVco = 0,
                 std::int16_t UVco = 0) {
  RangeCase one{nominal, line, firmware, {}};
  one.limits.OVco = OVco;
  one.limits.UVco = UVco;
  return one;
}

TEST(LimitRanges, FollowTheDevice) {
  const Range ov120{130, 160, 1}, uv120{0, 110, 1}, ovLow{220, 300, 2}, ovHigh{260, 300, 2}, uv240{0, 220, 2};
  const Range list120{135, 160, 5}, list240{260, 300, 10}, overload{2, 40, 1};
  const Case cases[] = {
      {"120 V on any firmware",
       device(120, 0, "1.AA0"),
       {{ov120, ov120, ov120, {80, 110, 1}, uv120, uv120, overload}}},
      {"120 V with limits at their ends",
       device(120, 0, "1.KD1", 130, 110),
       {{ov120, ov120, {125, 160, 1}, {80, 115, 1}, uv120, uv120, overload}}},
      {"120 V second line",
       device(120, 1, "2.00", 150, 80),
       {{list120, list120, ov120, {80, 110, 1}, {80, 100, 5}, {0, 95, 5}, overload}}},
      {"240 V later firmware",
       device(240, 0, "1.KD1", 280, 160),
       {{ovLow, ovLow, ovLow, {80, 220, 2}, uv240, uv240, overload}}},
      {"240 V later firmware at 220",
       device(240, 0, "1.JB3", 220, 220),
       {{ovLow, ovLow, {210, 300, 2}, {80, 230, 2}, uv240, uv240, overload}}},
      {"240 V later firmware at 260",
       device(240, 0, "1.JB3", 260, 160),
       {{ovLow, ovLow, ovLow, {80, 220, 2}, uv240, uv240, overload}}},
      {"240 V earlier firmware",
       device(240, 0, "1.JB2", 280, 160),
       {{ovHigh, ovHigh, ovHigh, {80, 220, 2}, uv240, uv240, overload}}},
      {"240 V, the later text that counts as earlier",
       device(240, 0, "1.JD1", 260, 160),
       {{ovHigh, ovHigh, {250, 300, 2}, {80, 220, 2}, uv240, uv240, overload}}},
      {"240 V second line",
       device(240, 1, "1*14", 280, 140),
       {{list240, list240, ovHigh, {80, 220, 2}, {140, 180, 10}, {0, 170, 10}, overload}}},
      {"240 V second line with a later text",
       device(240, 1, "2*00", 280, 140),
       {{list240, list240, ovLow, {80, 220, 2}, {140, 180, 10}, {0, 170, 10}, overload}}},
      {"any other rating", device(208, 0, "1.KD1", 130, 110), kStart},
  };
  for (const Case& c : cases) EXPECT_EQ(limitRanges(kStart, c.device), c.ranges) << c.about;
}

}  // namespace
}  // namespace zephon
