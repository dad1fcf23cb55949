#pragma once

#include <span>
#include <string>
#include <string_view>

namespace zephon {

// The one-byte codes of the device's events: one of the low seven bits names the disturbance, and bit 7 on top
// of it tells its end. A shutdown turns the outlets off; what is only recorded leaves them on.
namespace event {
inline constexpr int kPowerOutage = 1;
inline constexpr int kUnderVoltageShutdown = 2;
inline constexpr int kUnderVoltageRecord = 4;
inline constexpr int kOverVoltageRecord = 8;
inline constexpr int kOverVoltageShutdown = 16;
inline constexpr int kSurge = 32;
inline constexpr int kCurrentOverload = 64;
constexpr int endOf(int code) {
  return code + 128;
}
}  // namespace event

struct EventCode {
  int code = 0;
  int key = 0;  // of its text in the dictionary
};

// All codes there are, in the order in which a text is compared with theirs.
std::span<const EventCode> eventCodes();

// The table's row of a code; null for a number that is none.
const EventCode* findEventCode(double eventNumber);

// The text of a code; empty when it is none of the table.
std::string pqString(double eventNumber, std::span<const std::string> dict);

// The code of a text, compared exactly, the first in the table's order where two have the same text. 0 when
// it is the text of no code, and for the empty text.
double pqNumber(std::string_view eventString, std::span<const std::string> dict);

}  // namespace zephon
