#pragma once

#include "form/main.h"

namespace zephon {

// What the data page has for one log.
struct LogControls {
  Button DataElements::*button;  // downloads it, or opens a file
  std::size_t captionKey;        // of the button's caption
  Button DataElements::*clear;   // erases it on the device; the chart memory has none
};

inline constexpr LogControls kEventControls{&DataElements::tsDataBtn, 36, &DataElements::clrTsDataBtn};
inline constexpr LogControls kHistoryControls{&DataElements::histDataBtn, 37, &DataElements::clrHistDataBtn};
inline constexpr LogControls kChartControls{&DataElements::cmDataBtn, 38, nullptr};

}  // namespace zephon
