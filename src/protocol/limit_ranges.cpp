#include "protocol/limit_ranges.h"

#include <optional>

#include "protocol/firmware_gates.h"

namespace zephon {
namespace {

using Applies = bool (*)(const RangeCase&);

bool always(const RangeCase&) {
  return true;
}
bool secondLine(const RangeCase& device) {
  return device.modelLine == 1;
}
bool lowFloor(const RangeCase& device) {
  return !hasHighOverVoltageFloor(device.firmware);
}
bool highFloor(const RangeCase& device) {
  return hasHighOverVoltageFloor(device.firmware);
}

// The editors of a row.
enum : unsigned {
  kOVco = 1U << editor::OVco,
  kOVre = 1U << editor::OVre,
  kOVrs = 1U << editor::OVrs,
  kUVrs = 1U << editor::UVrs,
  kUVre = 1U << editor::UVre,
  kUVco = 1U << editor::UVco,
};

using Bound = std::optional<double>;
constexpr Bound kKeep{};

struct Row {
  std::int16_t nominalVolts;
  Applies applies;
  unsigned editors;
  Bound minimum, maximum, increment;
};

// Later rows override earlier ones. The least UVrs is 80 V at either rating; all else grows with it.
const Row kRows[] = {
    {120, always, kOVco | kOVre | kOVrs, 130, 160, 1},
    {120, always, kUVrs, 80, 110, 1},
    {120, always, kUVre | kUVco, 0, 110, 1},
    {120, [](const RangeCase& d) { return d.limits.OVco == 130; }, kOVrs, 125, kKeep, kKeep},
    {120, [](const RangeCase& d) { return d.limits.UVco == 110; }, kUVrs, kKeep, 115, kKeep},
    {120, secondLine, kOVco | kOVre, 135, kKeep, 5},
    {120, secondLine, kUVre, 80, 100, 5},
    {120, secondLine, kUVco, 0, 95, 5},

    {240, always, kOVco | kOVre | kOVrs, 260, 300, 2},
    {240, always, kUVrs, 80, 220, 2},
    {240, always, kUVre | kUVco, 0, 220, 2},
    {240, lowFloor, kOVco | kOVre | kOVrs, 220, kKeep, kKeep},
    {240, [](const RangeCase& d) { return lowFloor(d) && d.limits.OVco == 220; }, kOVrs, 210, kKeep, kKeep},
    {240, [](const RangeCase& d) { return highFloor(d) && d.limits.OVco == 260; }, kOVrs, 250, kKeep, kKeep},
    {240, [](const RangeCase& d) { return d.limits.UVco == 220; }, kUVrs, kKeep, 230, kKeep},
    {240, secondLine, kOVco | kOVre, 260, kKeep, 10},
    {240, secondLine, kUVre, 140, 180, 10},
    {240, secondLine, kUVco, 0, 170, 10},
};

NumEdit::Range applied(const NumEdit::Range& range, const Row& row) {
  return {row.minimum.value_or(range.minimum), row.maximum.value_or(range.maximum),
          row.increment.value_or(range.increment)};
}

}  // namespace

EditorRanges limitRanges(EditorRanges ranges, const RangeCase& device) {
  for (const Row& row : kRows) {
    if (row.nominalVolts != device.nominalVolts || !row.applies(device)) continue;
    for (std::size_t i = 0; i < ranges.size(); ++i) {
      if ((row.editors >> i & 1U) != 0) ranges[i] = applied(ranges[i], row);
    }
  }
  return ranges;
}

void setLimitRanges(Main& main, std::int16_t nominalVolts) {
  EditorRanges ranges;
  for (std::size_t i = 0; i < ranges.size(); ++i) ranges[i] = (main.setup.*kLimitEditors[i]).range();
  ranges = limitRanges(ranges, {nominalVolts, main.link.modelLine, main.link.firmwareVersion, main.limits});
  for (std::size_t i = 0; i < ranges.size(); ++i) (main.setup.*kLimitEditors[i]).setRange(ranges[i]);
}

}  // namespace zephon
