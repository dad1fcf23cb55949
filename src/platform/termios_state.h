#pragma once

#include <termios.h>

#include "platform/serial_device.h"

namespace zephon {

// The line settings of a terminal. A speed that is none of the usual ones is told as 0.
LineState lineStateOf(const termios& terminal);

// Makes the terminal a bare line with these settings: any byte passes both ways unchanged and unechoed, a
// read takes what is there, no flow control, no waiting for a carrier. False if the system has no such speed.
bool makeBareLine(termios& terminal, const LineState& state);

}  // namespace zephon
