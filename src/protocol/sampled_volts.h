#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "form/main.h"

namespace zephon {

// The second line tells its voltages as single-byte samples of a converter that is far from linear. They are
// averaged over 50 and corrected by hand-fitted steps, in single precision throughout.

// Line-ground volts of a sum of samples, less 48 each: a whole number. 0 where the device can't tell.
float lineGroundVolts(std::int32_t sum, int nominalVolts, bool centerTap);

// Neutral-ground volts of a sum of samples: a whole number, 0 under 3.
float neutralGroundVolts(std::int32_t sum);
// Its text, "0-3 V" for 0; nothing at exactly 100, where the label is left as it stood.
std::optional<std::string> neutralGroundText(float volts);

// Read, keep and show them. A sample that does not come within 200 ms starts the average anew 400 ms later;
// after ten in a row the result is false. About six seconds on a silent line.
bool getVLGtr(Main& main);
bool getVNGtr(Main& main);

}  // namespace zephon
