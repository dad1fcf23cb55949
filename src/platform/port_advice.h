#pragma once

#include <array>
#include <string>

#include "platform/port_folders.h"

namespace zephon {

// What keeps a port from being opened, as far as the system tells.
enum class PortTrouble {
  None,
  NoPortName,    // the text is not "COM" and a number
  Missing,       // the device does not stand; others do
  MissingAlone,  // nor does any other serial port
  Hidden,        // the user may not look at it
  OwnerShut,     // the user owns it, and its mode keeps the owner out
  GroupShut,     // its mode keeps the group out
  NotInGroup,    // the user is not in its group
  NextLogin,     // the user is in its group from the next log-in on
  BeyondMode,    // the user is in its group: something else forbids it
  Busy,          // programs that the system names hold it
  BusyHidden,    // a program that the user may not see holds it
  NoSerial,      // it is something else than a serial port
  BackAgain,     // it is there again
  NoDevice,      // its node stands, but nothing answers behind it
  Other          // the system's own words tell
};

// What to do about it, to be put in words (protocol/advice_text.h). What stands in the places:
//   0  the device, "/dev/ttyUSB0", behind a link "/ports/COM1 -> /dev/ttyUSB0"
//   1  Missing: the ports that there are, "COM2 (/dev/ttyUSB1), /dev/ttyUSB3"; Busy: the programs,
//      "minicom (77)"; Other: the system's text; OwnerShut to BeyondMode: "root:dialout 0660"; else the user
//   2  OwnerShut to BeyondMode: the user; Hidden: the folder
//   3  OwnerShut to BeyondMode: the group
struct PortAdvice {
  PortTrouble trouble = PortTrouble::None;
  std::array<std::string, 4> places = {};
};

// Where the advice looks, so that a test can build a little system of its own.
struct AdviceRoots {
  PortFolders folders = systemPortFolders();
  std::string processes = "/proc";
};

// About a port that could not be opened: the device at `devicePath` (as devicePath() gave it) and the system's
// error number. It tells what the system says now: which ports there are, who owns the device, whether the
// user is in its group, which program holds it.
PortAdvice portAdvice(const std::string& devicePath, int error, const AdviceRoots& roots = {});

}  // namespace zephon
