#pragma once

#include "display/page_exits.h"
#include "form/main.h"

namespace zephon {

// The data page: the device's three logs. With a device each log button downloads its log, without one it
// opens a saved file; its caption says which. One at a time: the page's buttons are held meanwhile.

// Wires the three log buttons, the two clear buttons and cancelDataBtn.
void wireDataPage(Main& main, const PageExits& exits);

// Lays the page out for the device that is connected, or for none. `chartMemory` tells whether the firmware
// has one. A log that was on the page before, and is this device's, is there again.
void layDataPage(Main& main, bool chartMemory);

// The page's first read, with its buttons held: a device without its chart memory fitted loses cmDataBtn.
// False when the exchange failed.
bool readDataPage(Main& main);

// Releases and hides everything of the page. What stands in the tables stays.
void clearDataPage(Main& main);

}  // namespace zephon
