#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "simulator/story.h"
#include "simulator/waveform.h"

namespace zephon::simulator {

// How the device is run. The defaults suit a test: the same seed always gives the same day.
struct Options {
  bool paced = true;      // bytes take the line's time; off for benches
  double answerMs = 0.3;  // from a command's last byte to the start of the reply
  double cycleSeconds = 10;

  std::uint64_t seed = 1;
  std::int64_t unixStart = 1709649000;    // universal time at the loop's start: 2024-03-05 14:30:00
  double pastSeconds = 0;                 // how long the device has stood at the site already
  Story site = Story::Lively;             // what kind of place it is
  std::optional<Waveform> waveform = {};  // what the scope sees; the site's own without one
  bool disturbances = true;               // off: the mains only wanders, nothing is ever counted
  double recordingHours =
      0;  // how long the chart memory has been recording at the loop's start; 0: it is off

  std::size_t heardKept = 20'000;    // commands kept by heard()
  std::size_t sentKept = 1'000'000;  // bytes kept by sent()
};

}  // namespace zephon::simulator
