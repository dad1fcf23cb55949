#pragma once

#include <cstdint>

namespace zephon {

// Latest readings of the polling pass.
struct Readings {
  float lastVln = 0;           // line-neutral RMS volts; line-ground on the second line
  float lastI = 0;             // RMS amps
  float lastP = 0;             // average watts
  float lastVng = 0;           // neutral-ground RMS volts
  float lastF = 0;             // hertz
  float lastPF = 0;            // power factor, -1 to 1
  float lastCF = 0;            // crest factor
  std::int16_t pollPhase = 0;  // pass counter of the second line, 0 to 4
};

}  // namespace zephon
