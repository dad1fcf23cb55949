#pragma once

#include <optional>
#include <string>

#include "protocol/meters.h"

namespace zephon {

// What a polling pass puts on the measurement page.

// Keeps a reading and shows it: pointer, its colour, the axis, and the label, which without a text is left as
// it stood. A fresh reading is never stale.
void showReading(Main& main, const Meter& meter, float reading, const std::optional<std::string>& text);

// The label of a meter that is off.
void showUnit(Main& main, const Meter& meter);

// What the model line at hand polls and the user left on is now of before a failure.
void markStale(Main& main);

}  // namespace zephon
