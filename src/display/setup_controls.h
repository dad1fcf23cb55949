#pragma once

#include "form/main.h"

namespace zephon {

// The controls of the setup page that write to the device. One write at a time: they are all held while one
// is under way, and for the second in which its note stands.

// Disables them, and ends a note that still stands.
void holdSetupControls(Main& main);
// Enables them. The wiring button only where the device has it.
void freeSetupControls(Main& main);

// Puts the captions of the writing buttons back.
void restoreSetupCaptions(Main& main);

// The write is done: says so on the button until Timer2's tick, with the controls held.
void noteDone(Main& main, Button& button);
// Timer2's tick.
void endNote(Main& main);

}  // namespace zephon
