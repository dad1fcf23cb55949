#pragma once

#include "form/main.h"

namespace zephon {

// Keeps the limit editors in order while they are changed: UVco, UVre, UVrs upward, and OVrs, OVre, OVco. A
// change narrows the ranges of its neighbours, and a neighbour whose value then lies outside is brought to
// the bound, which runs its own coupling. Only enabled editors act, and only they are moved.
//
// This ends: a neighbour is moved to the very value that moved it, and at that value the way back moves
// nothing.

// Wires the editors' changes. Once, at start.
void wireLimitCoupling(Main& main);

// Puts the factory's limits into the editors, with their coupling. Nothing goes to the device.
void setDefaultLimits(Main& main);

}  // namespace zephon
