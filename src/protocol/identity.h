#pragma once

#include <string>
#include <string_view>

#include "form/main.h"

namespace zephon {

// The firmware's version as it is compared and shown, of the four characters that the device tells: the first
// line leaves the point out ("1KD1" is "1.KD1"), the second does not ("2.00", "1*14").
std::string firmwareText(std::string_view reply, std::int16_t modelLine);

// "01.A2.FF": the first, third and fifth of five bytes in upper-case hexadecimal.
std::string chipText(std::string_view reply);

// What stands above the form while a device, or its log, is at hand. QLT, the maker's mark, stands before the
// tool's name there and in the reports.
inline std::string formCaption(const std::string& userID) {
  return "QLT Zephon Diagnostic Tool:    " + userID;
}

// The ten bytes of a name as the device stores it: filled up with blanks in front, cut after ten. Characters
// that the device's code page lacks become "?".
std::string nameBytes(std::string_view name);

// Each is one exchange, and false when it failed; the text in Main then stays as it was.
bool getFirmwareVersion(Main& main);  // link.firmwareVersion
bool getChipID(Main& main);           // link.chipID

// Reads the device's name into link.userID, the form's caption and userIDtxt. The second line stores none: it
// keeps what the program knows, at first "TessaraPCS", and never fails.
bool getUserID(Main& main);

// Writes the name that stands in userIDtxt; false when the device does not confirm it. With the second line
// it only goes to link.userID.
bool setUserID(Main& main);

}  // namespace zephon
