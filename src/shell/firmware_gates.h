#pragma once

#include "form/link.h"

namespace zephon {

// What the connected device has, told from its line, its rating and its firmware version. Versions are
// compared as plain text.
struct FirmwareGates {
  bool autoTransmit = false;      // enableAutoTXbtn
  bool internalChart = false;     // startInternalCMbtn, cmDataBtn
  bool overloadCount = false;     // OLrecTxt and its legend
  bool groundDetection = false;   // enableGndBtn
  bool overloadShutdown = false;  // enableOLcoBtn
  bool powerFailHold = false;     // enablePowerFailHoldBtn
  bool wiring = false;            // YorCTbutton and its legends
  bool neutralGround = false;     // the meter of the neutral-ground voltage
};

FirmwareGates firmwareGates(const Link& link);

}  // namespace zephon
