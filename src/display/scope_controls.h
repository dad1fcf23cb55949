#pragma once

#include "form/main.h"

namespace zephon {

// The scope's buttons: channels, scales, time, one-shot and hold. They are pressed while captures run, so
// what a capture goes by they only ask for: the loop takes it over between two captures.

// Wires them; the voltage is on at first.
void wireScopeControls(Main& main);

// The caption of holdBtn, which tells whether it waits for the trigger.
void showHold(Main& main);

}  // namespace zephon
