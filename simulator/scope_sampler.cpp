#include "simulator/scope_sampler.h"

#include <algorithm>

#include "simulator/encode.h"

namespace zephon::simulator {
namespace {

constexpr int kBlock = 256;
constexpr double kVoltsAcross = 1024;
constexpr double kAmpsAcross = 512;
// Where bytes take no time on the line, a block is still taken to last a moment.
constexpr double kShortestBlock = 0.016;

}  // namespace

std::string ScopeSampler::block(const ScopeKind& kind, Waveform shape, const SiteValues& seen, double now) {
  const bool goesOn = mark_ == kind.mark && now < sentUntil_;
  std::string bytes(goesOn ? "" : kind.mark);
  if (!goesOn) next_ = 0;
  mark_ = kind.mark;
  const double period = 0.060 / kind.acrossSixtyMs;
  for (const int end = next_ + kBlock; next_ < end; ++next_) {
    const WaveSample sample = waveAt(shape, seen, next_ * period);
    if (kind.volts) bytes += voltsSample(sample.volts);
    if (kind.amps) bytes += ampsSample(sample.amps);
  }
  const double lasts = std::max(kShortestBlock, static_cast<double>(bytes.size()) * byteSeconds_);
  sentUntil_ = (goesOn && byteSeconds_ > 0 ? sentUntil_ : now) + lasts;
  return bytes;
}

std::string voltsSample(double volts) {
  return twosComplement(volts / kVoltsAcross, 1);
}

std::string ampsSample(double amps) {
  return twosComplement(amps / kAmpsAcross, 2);
}

}  // namespace zephon::simulator
