#pragma once

#include <vector>

#include "platform/event_loop.h"
#include "protocol/commands.h"

namespace zephon::benchmarks {

// What a polling pass has to say and where it has to pause, step by step. It is written down here by itself,
// from the rows of the command tables, so that a pass that says or waits more than it has to shows.
struct Step {
  const DeviceCommand* command;  // an exchange; nullptr for a pause
  double pauseMs = 0;
};
using Dialogue = std::vector<Step>;

// The first line, newest firmware: seven meters, the disturbance record, the energy.
Dialogue firstLinePass();

// Five passes of the second line at 120 V with both its meters on, the first of which reads the device's
// memory and its outlets too.
Dialogue secondLineCycle();

// How long it pauses.
Millis pausesOf(const Dialogue& dialogue);
// The least that its exchanges can take: the bytes at ten bits each, both ways, and the time that the device
// lets pass before each answer.
Millis exchangesOf(const Dialogue& dialogue, int baud);

// What a pass takes that meets a line gone silent: it ends with the first query of the first line, and with
// the last of ten samples of the second.
Millis deadFirstLinePass();
Millis deadSecondLinePass();

}  // namespace zephon::benchmarks
