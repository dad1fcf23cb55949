#pragma once

#include <string_view>

#include "form/link.h"

namespace zephon {

// What a device has, told from its line, its rating and its firmware's version: every question of that kind is
// answered here. Versions are compared as plain text, so that "1.GB0" comes before "1.IBR". The second line's
// devices for 208/240 V carry a "*" where the others have a point ("1*14", "2.00"), which puts any of them
// before those of the same number for 120 V.

// A device as it is told by the link, a file or a log under analysis.
struct DeviceKind {
  int modelLine = 0;  // 0 Orvantis, 1 Tessara
  std::string_view firmware;
  int nominalVolts = 0;
};
DeviceKind kindOf(const Link& link);

// The controls that the pages show.
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
FirmwareGates firmwareGates(const DeviceKind& device);

// Whether it counts current overloads.
bool countsOverloads(const DeviceKind& device);

// The neutral-ground voltage is asked for in four places, each by a condition of its own; its meter
// (FirmwareGates::neutralGround) goes by a fifth.
// In a polling pass: any device of the second line without the mark of 208/240 V is asked, also one so old
// that its meter is hidden.
bool pollsNeutralGround(const DeviceKind& device);
// In a chart and its file: the second line's only from "2.00" on, and for 120 V.
bool recordsNeutralGround(const DeviceKind& device);
// In the unattended export: that goes for either line, and leaves it out for the first line's "1.KD1".
bool exportsNeutralGround(const DeviceKind& device);
// In the analysis: what is recorded counts only on a line of 120 V, also of the first line.
bool judgesNeutralGround(const DeviceKind& device);

// The mark of a rating of 208/240 V in the second line's version.
bool hasHighRatingMark(std::string_view firmware);

// Whether it can be asked at connection how it is wired. It goes by the numbers in the version, the button
// (FirmwareGates::wiring) by its text: "1*14" has both, "1*7" only the button.
bool tellsWiring(const DeviceKind& device);

// True for the firmware whose over voltage limits start at 130 on the 120 V basis: "1.JD1" and everything
// before "1.JB3". Later firmware goes down to 110.
bool hasHighOverVoltageFloor(std::string_view firmware);

}  // namespace zephon
