#pragma once

#include "form/main.h"

namespace zephon {

// What the seven page buttons do. A page switched on takes the other pages off, gives them time to wind down,
// connects if need be, lays itself out and does its first reads; any failure on the way ends in errorSub. The
// last page switched off ends the connection. A page that is left in the middle of all this winds down
// silently.
void wirePageButtons(Main& main);

}  // namespace zephon
