#pragma once

#include <cstdint>
#include <string_view>

#include "form/main.h"
#include "protocol/limit_editors.h"

namespace zephon {

using EditorRanges = PerEditor<NumEdit::Range>;

// What the ranges of the editors depend on; `limits` is what the device holds.
struct RangeCase {
  std::int16_t nominalVolts = 0;
  std::int16_t modelLine = 0;
  std::string_view firmware;
  Limits limits;
};

// The ranges of the editors for a device. The overload editor's never changes, and nothing does for a rating
// other than 120 and 240.
EditorRanges limitRanges(EditorRanges ranges, const RangeCase& device);

// Gives the editors the ranges for the connected device. No value is moved.
void setLimitRanges(Main& main, std::int16_t nominalVolts);

}  // namespace zephon
