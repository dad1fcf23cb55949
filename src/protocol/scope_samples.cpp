#include "protocol/scope_samples.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace zephon {
namespace {

constexpr double kVoltStep = 1024.0 / 256;
constexpr double kAmpereStep = 512.0 / 65536;
constexpr int kVoltage = 1;
constexpr int kCurrent = 2;
constexpr int kBoth = 3;

constexpr std::array<CaptureKind, 3> kKinds = {{{&orvantis::kScopeVolts, "VV", 1, 256},
                                                {&orvantis::kScopeAmps, "AA", 2, 225},
                                                {&orvantis::kScopeBoth, "VA", 3, 155}}};

// A search that finds nothing leaves the place before the first character.
std::size_t firstSample(std::string_view gathered, std::string_view mark) {
  const std::size_t found = gathered.find(mark);
  return found == std::string_view::npos ? mark.size() - 1 : found + mark.size();
}

}  // namespace

const CaptureKind* captureKind(int mode) {
  return mode >= kVoltage && mode <= kBoth ? &kKinds[static_cast<std::size_t>(mode - 1)] : nullptr;
}

std::size_t captureSamples(double xScale) {
  return xScale > 1 ? static_cast<std::size_t>(kScopeBlock * xScale) : kScopeBlock;
}

std::size_t captureCommands(double xScale) {
  return xScale == 2 ? 2 : xScale == 4 ? 4 : 1;
}

std::size_t captureBytes(const CaptureKind& kind, double xScale) {
  return captureSamples(xScale) * kind.sampleBytes + kind.mark.size();
}

double samplePeriodMs(const CaptureKind& kind) {
  return kMsPerDivision * kTimeDivisions / kind.samplesAcross;
}

double scopeVolts(char sample) {
  return static_cast<std::int8_t>(sample) * kVoltStep;
}

double scopeAmperes(char high, char low) {
  const int whole = static_cast<std::int8_t>(high) * 256 + static_cast<std::uint8_t>(low);
  return whole * kAmpereStep;
}

ScopeSamples decodeCapture(std::string_view gathered, int mode, std::size_t most) {
  ScopeSamples samples;
  const CaptureKind* kind = captureKind(mode);
  if (!kind) return samples;
  gathered.remove_prefix(std::min(firstSample(gathered, kind->mark), gathered.size()));
  const std::size_t count = std::min(most, gathered.size() / kind->sampleBytes);
  for (std::size_t i = 0; i < count; ++i) {
    const std::string_view bytes = gathered.substr(i * kind->sampleBytes, kind->sampleBytes);
    if (mode != kCurrent) samples.volts.push_back(scopeVolts(bytes.front()));
    if (mode != kVoltage) samples.amperes.push_back(scopeAmperes(bytes[bytes.size() - 2], bytes.back()));
    if (mode == kBoth) samples.watts.push_back(samples.volts.back() * samples.amperes.back());
  }
  return samples;
}

}  // namespace zephon
