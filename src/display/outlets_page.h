#pragma once

#include "display/page_exits.h"
#include "form/main.h"

namespace zephon {

// The outlets page: three buttons that show the device's outlets and switch them. Turning outlets off, or
// cycling them, takes two presses: the first changes the button's text and thereby arms it, the second acts.
// The right mouse button takes an armed press back.

// Wires oOnBtn, oCycBtn and outletTimer.
void wireOutletsPage(Main& main, const PageExits& exits);

// The page has been opened: polling begins. The buttons can be pressed once the device has told its state;
// nothing stays armed from an earlier visit.
void startOutletsPage(Main& main);

}  // namespace zephon
