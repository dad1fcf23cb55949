#pragma once

#include "form/main.h"

namespace zephon {

// The device's option switches, each mirrored by a button of the setup page that shows the last reply.

// Each reads one switch onto its button; false when the exchange failed or the reply's last character is
// neither "Y" nor "N". All but the first leave the screen alone, and answer true, off the setup page. The
// chart memory's can also say "1", not fitted: on the data page that hides cmDataBtn.
bool getAutoTXstate(Main& main);
bool getInternalChartState(Main& main);
bool getGndDetectState(Main& main);
bool getOLcoState(Main& main);
bool getPowerFailHold(Main& main);

// Each writes one switch; false when the device does not confirm. The second line's automatic transmit is not
// confirmed. The chart memory can only be started.
bool setEnableAutoTX(Main& main, bool on);
bool setStartInternalCM(Main& main);
bool setEnableGndDetect(Main& main, bool on);
bool setEnableOLshutdown(Main& main, bool on);
bool setEnablePowerFailHold(Main& main, bool on);

// Puts the texts and tooltips of all five back by their buttons' values: the language has changed.
void showOptionTexts(Main& main);
// Puts the chart memory's text and tooltip back by its button's value.
void showChartMemoryText(Main& main);

}  // namespace zephon
