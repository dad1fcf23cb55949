#pragma once

#include <string>
#include <string_view>

#include "simulator/waveform.h"

namespace zephon::simulator {

// What a scope command asks for.
struct ScopeKind {
  std::string_view mark;
  bool volts, amps;
  double acrossSixtyMs;  // samples in 60 milliseconds
};
inline constexpr ScopeKind kScopeVolts{"VV", true, false, 256};
inline constexpr ScopeKind kScopeAmps{"AA", false, true, 225};
inline constexpr ScopeKind kScopeBoth{"VA", true, true, 155};

// The device's fast converter. A command brings a block of 256 samples behind a mark; the same command once
// more, before the block has left the device, brings the samples that follow, without a mark.
class ScopeSampler {
 public:
  // `byteSeconds` is how long a byte takes on the line, 0 on a line without delay.
  explicit ScopeSampler(double byteSeconds) : byteSeconds_(byteSeconds) {}

  std::string block(const ScopeKind& kind, Waveform shape, const SiteValues& seen, double now);

 private:
  double byteSeconds_;
  std::string_view mark_;     // of the block before
  double sentUntil_ = -1e30;  // when that will have left
  int next_ = 0;              // the sample behind it
};

// A sample as it goes over the line, in two's complement, most significant byte first, held at the ends of
// what the converter can tell: volts in one byte for 1024 V peak to peak, amps in two for 512 A.
std::string voltsSample(double volts);
std::string ampsSample(double amps);

}  // namespace zephon::simulator
