#pragma once

#include "form/main.h"

namespace zephon {

// Reads the device's limits into Main::limits and shows them in the editors with their ranges. False when an
// exchange failed; the editors then keep what they show. The second line's come with importPIC.
bool getThresholds(Main& main);

// Writes what the editors show. The first line confirms each limit, the first that it doesn't ends the
// writing. The second line echoes two bytes; its restore points and overload point are not sent. False when
// the device did not confirm, or when a value has no byte: nothing is sent then. What the device took is seen
// by reading it back.
bool setThresholds(Main& main);

}  // namespace zephon
