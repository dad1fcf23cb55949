#pragma once

#include "form/main.h"

namespace zephon {

// The tick of measurementTimer: one polling pass, tried up to four times in a row. The fourth failure of a
// pass that is still wanted is a lost link. The timer stands still for the length of the tick.
void pollTick(Main& main);

}  // namespace zephon
