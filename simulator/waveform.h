#pragma once

#include <optional>
#include <string_view>

#include "simulator/site.h"

namespace zephon::simulator {

// The shapes of the mains and the load that a technician knows from a scope.
enum class Waveform {
  Sine,             // clean, the current shifted as the power factor says
  SwitchingSupply,  // crests cut flat, the current in pulses at the crests
  PhaseShifted,     // a clean voltage, the current 60 degrees behind: an idling motor
  SquareUps,        // the stepped square of a cheap converter, as wide as its crest factor says
  Sag,              // a sine that falls to 40 % from 21 to 46 ms
};
std::optional<Waveform> waveformNamed(std::string_view name);

// What such a site shows by itself: the square wave at a crest factor near 1, otherwise the sine.
Waveform waveformOf(const SiteValues& seen);

struct WaveSample {
  double volts = 0;
  double amps = 0;
};

// One moment of the wave, so long after a capture's start, where the voltage rises through zero. RMS voltage
// and current, frequency and power factor are the site's; in the sag they are those around it.
WaveSample waveAt(Waveform shape, const SiteValues& seen, double seconds);

}  // namespace zephon::simulator
