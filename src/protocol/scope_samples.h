#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "protocol/commands.h"

namespace zephon {

// What the scope asks for, and what the bytes of its replies mean.

// One way of capturing.
struct CaptureKind {
  const DeviceCommand* command;  // of one block
  std::string_view mark;         // ahead of the first sample
  std::size_t sampleBytes;       // one of voltage, two of current, both one after the other
  double samplesAcross;          // the samples that make the picture's width at a time factor of 1
};

// Of modes 1 to 3; nullptr for any other, which captures nothing.
const CaptureKind* captureKind(int mode);

inline constexpr std::size_t kScopeBlock = 256;
inline constexpr double kMsPerDivision = 6;  // at a time factor of 1
inline constexpr int kTimeDivisions = 10;

// One block, or as many as a time factor above 1 says.
std::size_t captureSamples(double xScale);
// How often the command goes out: 2 and 4 times at those time factors, otherwise once.
std::size_t captureCommands(double xScale);
// What the whole reply has: the samples and one mark.
std::size_t captureBytes(const CaptureKind& kind, double xScale);
// Milliseconds from one sample to the next: the picture is as wide in all modes.
double samplePeriodMs(const CaptureKind& kind);

// A sample is a whole number in two's complement: a byte of 4 V steps (-512 to 508 V), or two bytes, high one
// first, of 1/128 A steps (-256 to just under 256 A).
double scopeVolts(char sample);
double scopeAmperes(char high, char low);

// The samples of a capture; those that the mode doesn't have are empty. Watts are volts times amperes.
struct ScopeSamples {
  std::vector<double> volts;
  std::vector<double> amperes;
  std::vector<double> watts;
};

// Decodes what was gathered from the first mark on; without one the text's second character counts as the
// first sample's. At most `most` samples, and only whole ones.
ScopeSamples decodeCapture(std::string_view gathered, int mode, std::size_t most);

}  // namespace zephon
