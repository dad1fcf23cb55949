#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "platform/append_file.h"

namespace zephon {

// Where the rows of a live chart go at once, until they are saved.
struct ChartJournal {
  AppendFile file;                  // holds the rows of the device at hand; not open without any
  std::string device;               // whose rows they are
  std::vector<AppendFile> earlier;  // hold rows of the same table, of other devices
  std::size_t rows = 0;             // of the table so many are in a file, or saved
  bool failureTold = false;
};

// The live chart in chartData, beside the table itself.
struct Recording {
  // Which plots are shown, in the order of the chart's buttons; all at the start.
  std::array<bool, 8> chartPlotOn{true, true, true, true, true, true, true, true};
  std::array<bool, 8> measuredPlots = chartPlotOn;  // by the device that was recorded last
  // chartData is a live chart, and its last row the one being filled; otherwise it came from a device's
  // memory or a file, whole.
  bool live = false;
  // Rows for which no query was answered, as stretches [first, end): zeros in the table, gaps in a plot.
  std::vector<std::array<std::size_t, 2>> gaps;
  // Rows before which the computer's clock had shown a later moment: their number, and that moment.
  std::vector<std::pair<std::size_t, double>> setBacks;
  std::uint64_t ticks = 0;  // begun so far; a tick that is not the latest one has been overtaken
  bool ticking = false;     // the latest tick is under way
  ChartJournal journal;
};

}  // namespace zephon
