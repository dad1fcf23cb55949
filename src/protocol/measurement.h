#pragma once

#include "form/main.h"

namespace zephon {

// The live queries of the first line. Each reads one quantity into Main's readings, its slider and its label,
// and is false when the exchange failed, with everything as it was.
bool getVLNrms(Main& main);
bool getIrms(Main& main);
bool getPavg(Main& main);
bool getVNGrms(Main& main);
bool getFrequency(Main& main);
// Half the power factor, signed, and a letter: C for a capacitive load, L for an inductive one.
bool getPF(Main& main);
// Half the peak volts. The factor is peak over the volts of the same pass, so getVLNrms has to run before.
bool getCF(Main& main);

// One polling pass: every quantity that the user has left on, the counters, the energy total, and whatever
// was asked to be cleared. Ends with false at the first failure, and silently as soon as the page is left or
// the program is closing; what was read so far stands, and what is older shows as stale.
bool getMeasurements(Main& main);

}  // namespace zephon
