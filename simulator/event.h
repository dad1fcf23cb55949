#pragma once

#include <cstddef>

namespace zephon::simulator {

// What a conditioner counts and a first-line device logs.
enum class Event { Overload, Outage, UnderShutdown, UnderRecord, OverRecord, OverShutdown, Surge };
inline constexpr std::size_t kEvents = 7;

// The code of an event in the event log; its end has 128 more.
constexpr int eventCode(Event event) {
  constexpr int kCodes[kEvents] = {64, 1, 2, 4, 8, 16, 32};
  return kCodes[static_cast<std::size_t>(event)];
}
inline constexpr int kEndOfEvent = 128;

}  // namespace zephon::simulator
