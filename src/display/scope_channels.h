#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "form/main.h"

namespace zephon {

// The scope's three channels, in the order of the graph's plots and axes.
struct ScopeChannel {
  Button ScopeElements::*toggle;
  Button ScopeElements::*up;    // doubles what a division is worth
  Button ScopeElements::*down;  // halves it
  float Capture::*scale;        // a division
  float largest, smallest;
  std::vector<double> Capture::*samples;
  const char* label;  // of the scale's caption
  const char* unit;
  const char* plot;
  const char* axis;
  std::size_t key;  // of the quantity's name
};

inline constexpr std::array<ScopeChannel, 3> kScopeChannels = {
    {{&ScopeElements::CH1togBtn, &ScopeElements::p1upBtn, &ScopeElements::p1downBtn, &Capture::ch1Scale, 1600,
      6.25, &Capture::scopeV, "Ch1: ", "V", "voltage", "vaxis", 139},
     {&ScopeElements::CH2togBtn, &ScopeElements::p2upBtn, &ScopeElements::p2downBtn, &Capture::ch2Scale, 32,
      0.0625, &Capture::scopeA, "Ch2: ", "A", "current", "iaxis", 140},
     {&ScopeElements::CH3togBtn, &ScopeElements::p3upBtn, &ScopeElements::p3downBtn, &Capture::ch3Scale, 6400,
      6.25, &Capture::scopeW, "Ch3: ", "W", "power", "paxis", 141}}};

// An axis reaches so many divisions up and down.
inline constexpr float kDivisionsUp = 4;

}  // namespace zephon
