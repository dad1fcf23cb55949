#pragma once

#include "form/main.h"
#include "support/dialogue.h"

namespace zephon::benchmarks {

// What a program does on the line that knows nothing but the dialogue: it writes a command, waits until there
// is something to read, and reads until the reply is whole.

// How it waits: for its file to have something, and for a time to pass.
struct Waiting {
  void (*readable)(int file, double milliseconds);
  void (*time)(double milliseconds);
};
extern const Waiting kPoll;  // asleep in poll(2)
extern const Waiting kBusy;  // awake

// The file of the port that the tool has open.
int fileOf(const Main& main);

// False when the whole reply does not come in time.
bool exchange(int file, const DeviceCommand& command, const Waiting& waiting);

// A pass with its pauses; false when an exchange fails.
bool barePass(int file, const Dialogue& pass, const Waiting& waiting);

// After a failure: waits for what is still under way, and drops it.
void letLateBytesGo(Main& main);

}  // namespace zephon::benchmarks
