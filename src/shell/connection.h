#pragma once

#include "form/main.h"

namespace zephon {

// The lifetime of the link. The speed is decided by the model line assumed, and the model line by which
// command gets an answer: the first line answers "gN" at 115200, the second "r" at 9600.

// Opens the port, tells the model line, reads identity and rating. True when the link is up and the device is
// identified. False leaves the port as it is; the caller ends the attempt with errorSub, or, when its visit
// no longer stands, silently. A port that can't be opened is told here, unless the data page is on.
bool connectSub(Main& main);

// The orderly end; shows nothing.
void disconnectSub(Main& main);

// The link failed while it was wanted: switches every page off, closes the port and tells the user, once.
void errorSub(Main& main);

// Opens the port of link.commPort at the speed of the model line assumed, and raises its modem lines. False
// leaves the reason in the table's lastCommError.
bool openPort(Main& main);

// Closes the port that an abandoned or failed attempt left open.
void closeHalfOpen(Main& main);

// Bare units, pointers at zero, counters cleared.
void resetDisplays(Main& main);

}  // namespace zephon
