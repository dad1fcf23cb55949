#pragma once

#include <cstddef>

#include "form/main.h"
#include "protocol/outlet_states.h"

namespace zephon {

// Texts of the command buttons while the outlets are on: what a press does, and what a second press does once
// the first has armed it.
inline constexpr std::size_t kKeyOutletsOn = 26;
inline constexpr std::size_t kKeyConfirmOff = 27;
inline constexpr std::size_t kKeyCycle = 28;
inline constexpr std::size_t kKeyConfirmCycle = 29;

// Shows a state on oOnBtn, oCycBtn and oFltBtn. While the outlets are on, a text that stands on a command
// button stays: it may be an armed press.
void showOutlets(Main& main, const OutletState& state);

// Asks the device and shows the answer. False when the exchange failed or the answer is no state; the buttons
// then stay as they are.
bool getOutlets(Main& main);    // first line
bool getOutletsTR(Main& main);  // second line
bool readOutlets(Main& main);   // the one of the model line

// Switch the outlets. The first line confirms, the second doesn't: its result is always true.
bool setOutletsOn(Main& main);
bool setOutletsOff(Main& main);
bool setOutletsCyc(Main& main);

}  // namespace zephon
