#pragma once

#include "display/page_exits.h"
#include "form/main.h"

namespace zephon {

// The setup page: limits, name, clock and option switches. Every write holds the page's writing controls and
// is read back, so that the screen shows what the device has. A write that fails while the page is wanted is
// a lost link.

// Wires the page's buttons and editors, Timer2 (the end of a button's note) and Timer3 (the running clock).
void wireSetupPage(Main& main, const PageExits& exits);

// The page's first reads. False at the first that fails, or when the page was left meanwhile.
bool readSetupPage(Main& main);

}  // namespace zephon
