#pragma once

#include "form/main.h"

namespace zephon {

// The scope's buttons: channels, scales, time, one-shot and hold. They are pressed while captures run, so
// what a capture goes by they only ask for: the loop takes it over between two captures.

// Wires them; the voltage is on at first.
void wireScopeControls(Main& main);

// holdBtn waits for the trigger, or the trigger has come: its caption says which.
void showHold(Main& main, bool waiting);

}  // namespace zephon
