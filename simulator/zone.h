#pragma once

#include "simulator/limits.h"

namespace zephon::simulator {

// Where the voltage lies between the limits, from no voltage up to too much of it.
enum class Zone : int { Outage = -3, UnderShutdown, UnderRecord, Normal, OverRecord, OverShutdown };

// `nominalVolts` sets what counts as no voltage at all: under a sixth of it. Once in a zone, the voltage has
// to come back by 1 % of the nominal beyond its border to leave it, so that a voltage at a border is one
// event.
Zone nextZone(Zone current, double volts, const Limits& limits, double nominalVolts);

// True if `zone` lies as far from normal as `border`, or further, on the same side.
bool reaches(Zone zone, Zone border);

// True if `next` lies further from normal than `current` on its own side: the start of an event.
bool worsens(Zone current, Zone next);

}  // namespace zephon::simulator
