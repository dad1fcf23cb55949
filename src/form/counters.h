#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace zephon {

// Disturbances that the device has counted since its counts were last cleared.
struct Counters {
  std::int32_t olCount = 0;         // current overloads
  std::int32_t poCount = 0;         // power outages
  std::int32_t uvcoCount = 0;       // under voltages (shutdown)
  std::int32_t uvreCount = 0;       // under voltages (record)
  std::int32_t ovreCount = 0;       // over voltages (record)
  std::int32_t ovcoCount = 0;       // over voltages (shutdown)
  std::int32_t sgCount = 0;         // surges
  bool clearCountsRequest = false;  // the next polling pass clears them
};

// One row of the second line's event table. The interval is the time since the event before it.
struct PdEvent {
  std::string text;  // column 1, from pqString
  std::int16_t days = 0;
  std::int16_t hours = 0;
  std::int16_t minutes = 0;
  std::int16_t seconds = 0;
  std::string date;  // column 6, "mm/dd/yy hh:mm:ss"
};

// The second line's last 60 events. Row k carries the number k + 1, used or not.
using PdEvents = std::array<PdEvent, 60>;

}  // namespace zephon
