#pragma once

#include <span>
#include <string>

#include "files/file_kind.h"

namespace zephon {

// A scope capture as it is saved. A channel that was not captured has no samples.
struct ScopeCapture {
  int mode = 0;  // 1 voltage, 2 current, 3 both and their product
  double xScale = 1;
  double ch1Scale = 0;  // volts, amperes, watts a division
  double ch2Scale = 0;
  double ch3Scale = 0;
  std::span<const double> volts = {};
  std::span<const double> amperes = {};
  std::span<const double> watts = {};
  double samplePeriod = 0;  // seconds
};

// Rows: seconds since the first sample, and the three channels; a channel without samples leaves its field
// empty.
std::string scopeCsv(const FileStamp& stamp, const ScopeCapture& capture, std::span<const std::string> dict);

}  // namespace zephon
