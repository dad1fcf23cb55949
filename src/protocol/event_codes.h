#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace zephon {

// A one-byte event code of the device: one of the low seven bits names the class, and bit 7 on top of it the
// end of that condition.
struct EventCode {
  int code = 0;
  int key = 0;  // of its text in the dictionary
};

// All codes there are, in the order in which a text is compared with theirs.
std::span<const EventCode> eventCodes();

// The table's row of a code; null for a number that is none.
const EventCode* findEventCode(double eventNumber);

// The entry of a dictionary; empty text when the dictionary has no such key.
std::string dictText(std::span<const std::string> dict, int key);

// The text of a code; empty when it is none of the table.
std::string pqString(double eventNumber, std::span<const std::string> dict);

// The code of a text, compared exactly, the first in the table's order where two have the same text. 0 when
// it is the text of no code, and for the empty text.
double pqNumber(std::string_view eventString, std::span<const std::string> dict);

// The name of month 1 to 12; empty for any other number.
std::string monthString(double theMonth, std::span<const std::string> dict);

}  // namespace zephon
