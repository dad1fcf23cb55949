#pragma once

#include "form/main.h"

namespace zephon {

// One capture of the scope, in two steps.

// Sends the command of scopeModeNow, once more for each further block of a long capture; the device goes on
// with the next block as soon as it has sent the one before. Nothing is sent in mode 0. False when the port
// did not take it, or the page was left.
bool scopeStart(Main& main);

// A pause in the place of a command.
void scopeStop(Main& main);

// Gathers the reply under one watchdog and decodes it into the capture's arrays; its bytes go to
// rawLogBuffer. True at once in mode 0. False on a failure, on a change of the form's size meanwhile, and
// when the page was left; the arrays then stay as they were.
bool scopeMode(Main& main);

}  // namespace zephon
