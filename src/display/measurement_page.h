#pragma once

#include "form/main.h"

namespace zephon {

// What the user does on the measurement page: a click turns a meter, or the record of disturbances, off or
// on, from the next polling pass on; a click on the energy folds its date and cost away or back; the two
// clear buttons ask "Clear?" and leave the clearing to the polling pass, which alone uses the line.

// Wires the seven sliders, recSlide, EUtxt, clrCountBtn and clrEUbtn.
void wireMeasurementPage(Main& main);

}  // namespace zephon
