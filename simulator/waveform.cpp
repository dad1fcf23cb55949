#include "simulator/waveform.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zephon::simulator {
namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kIdlingMotor = kPi / 3;
constexpr double kCut = 1.1;  // crests are cut from this phase to their mirror image
constexpr double kSagFrom = 0.021;
constexpr double kSagTo = 0.046;
constexpr double kSagLevel = 0.4;

struct Named {
  std::string_view name;
  Waveform shape;
};
constexpr std::array<Named, 5> kNames = {{{"sine", Waveform::Sine},
                                          {"switching-supply", Waveform::SwitchingSupply},
                                          {"phase-shifted", Waveform::PhaseShifted},
                                          {"square-ups", Waveform::SquareUps},
                                          {"sag", Waveform::Sag}}};

// All shapes have an RMS value of 1.
double sine(double phase) {
  return std::sqrt(2.0) * std::sin(phase);
}

double flatTopped(double phase) {
  const double top = std::sin(kCut);
  const double meanSquare = 2 / kPi * (kCut / 2 - std::sin(2 * kCut) / 4 + top * top * (kPi / 2 - kCut));
  return std::clamp(std::sin(phase), -top, top) / std::sqrt(meanSquare);
}

// Half waves of a third of the half cycle, around the crests.
double pulses(double phase) {
  const double within = std::fmod(phase, kPi) - kPi / 3;
  if (within <= 0 || within >= kPi / 3) return 0;
  return std::sqrt(6.0) * std::sin(3 * within) * (std::fmod(phase, 2 * kPi) < kPi ? 1 : -1);
}

// On for such a share of each half cycle that the crest factor comes out, and at zero around its ends.
double stepped(double phase, double crestFactor) {
  const double crest = std::max(crestFactor, 1.0);
  const double fromMiddle = std::abs(std::fmod(phase, kPi) / kPi - 0.5);
  if (fromMiddle > 0.5 / (crest * crest)) return 0;
  return std::fmod(phase, 2 * kPi) < kPi ? crest : -crest;
}

// How far the current is behind.
double lagOf(const SiteValues& seen) {
  const double lag = std::acos(std::clamp(std::abs(seen.powerFactor), 0.0, 1.0));
  return seen.reactive == 'C' ? -lag : lag;
}

WaveSample unitWave(Waveform shape, const SiteValues& seen, double phase) {
  switch (shape) {
    case Waveform::SwitchingSupply:
      return {flatTopped(phase), pulses(phase)};
    case Waveform::PhaseShifted:
      return {sine(phase), sine(phase - kIdlingMotor)};
    case Waveform::SquareUps: {
      const double step = stepped(phase, seen.crestFactor);
      return {step, step};
    }
    case Waveform::Sine:
    case Waveform::Sag:
      break;
  }
  return {sine(phase), sine(phase - lagOf(seen))};
}

}  // namespace

std::optional<Waveform> waveformNamed(std::string_view name) {
  const auto* row =
      std::find_if(kNames.begin(), kNames.end(), [name](const Named& n) { return n.name == name; });
  if (row == kNames.end()) return std::nullopt;
  return row->shape;
}

Waveform waveformOf(const SiteValues& seen) {
  return seen.crestFactor < 1.2 ? Waveform::SquareUps : Waveform::Sine;
}

WaveSample waveAt(Waveform shape, const SiteValues& seen, double seconds) {
  WaveSample sample = unitWave(shape, seen, 2 * kPi * seen.hertz * seconds);
  const bool sags = shape == Waveform::Sag && seconds >= kSagFrom && seconds < kSagTo;
  const double level = sags ? kSagLevel : 1;
  sample.volts *= seen.volts * level;
  sample.amps *= seen.amps * level;
  return sample;
}

}  // namespace zephon::simulator
