#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace zephon {

// A log as rows of numbers. Without rows it counts as never dimensioned.
template <std::size_t Columns>
using LogTable = std::vector<std::array<double, Columns>>;

// Which log stands on the data page.
enum class ShownLog { None, Events, History, Chart };

// Times are local. Values are rounded by the text pictures that they passed through.
struct Logs {
  // year (two digits), day, month, hour, minute, second, event code, magnitude
  LogTable<8> tsData;
  // year, day, month, hour, minute, second; average and maximum power (W); average, maximum and minimum
  // voltage (V); maximum current (A). One row a half hour; the last row is the moment of the download with
  // zeros, and closes the record before it.
  LogTable<12> histData;
  // dateSerial of the moment; voltage, current, power, neutral-ground voltage, frequency, power factor, crest
  // factor, energy (kWh). The last row of a live chart is the one being filled.
  LogTable<9> chartData;
  // The raw bytes of what came last: the frame of the events (8196) or of the history (110599), the joined pages
  // of a chart memory, the second line's image (512 characters), the scope's blocks while its page is on.
  std::string rawLogBuffer;
  ShownLog shown = ShownLog::None;
  // Of the device whose log of events, or history, stands in the tables.
  std::string chipID;
  std::int16_t modelLine = 0;
};

}  // namespace zephon
