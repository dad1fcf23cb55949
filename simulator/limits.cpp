#include "simulator/limits.h"

namespace zephon::simulator {
namespace {

// The points of one half byte: with no bit set, then for the bits 1, 2, 4 and 8.
struct Points {
  std::array<int, 5> at120;
  std::array<int, 5> at240;
  bool lowestBitFirst;  // which bit counts when more than one is set
};

constexpr Points kOverRecord = {{135, 140, 145, 150, 160}, {260, 270, 280, 290, 300}, false};
constexpr Points kUnderRecord = {{100, 95, 90, 85, 80}, {180, 170, 160, 150, 140}, false};
constexpr Points kOverShutdown = {{150, 135, 140, 145, 160}, {260, 270, 280, 290, 300}, true};
constexpr Points kUnderShutdown = {{80, 0, 85, 90, 95}, {140, 0, 150, 160, 170}, true};

std::size_t chosen(int half, bool lowestBitFirst) {
  for (std::size_t i = 0; i < 4; ++i) {
    const std::size_t bit = lowestBitFirst ? i : 3 - i;
    if ((half >> bit & 1) != 0) return bit + 1;
  }
  return 0;
}

int point(const Points& points, int half, int rating) {
  const auto& list = rating == 240 ? points.at240 : points.at120;
  return list[chosen(half & 15, points.lowestBitFirst)];
}

int overRestore(int shutdownHalf, int rating) {
  const std::size_t choice = chosen(shutdownHalf & 15, true);
  if (rating == 240) return choice == 0 ? 250 : 260;
  return choice == 1 ? 130 : choice == 2 ? 135 : 140;
}

}  // namespace

LimitRegisters factoryRegisters(int rating) {
  if (rating == 240) return {80, 90, 95, 130, 135, 140, 25};
  return {};
}

Limits limitsOf(const LimitRegisters& registers, int rating) {
  const double scale = rating / 120.0;
  return {registers.uvco * scale, registers.uvre * scale, registers.uvrs * scale,
          registers.ovrs * scale, registers.ovre * scale, registers.ovco * scale};
}

LimitBytes factoryBytes(int rating) {
  return {0x00, static_cast<std::uint8_t>(rating == 240 ? 0x00 : 0x01)};
}

Limits limitsOf(LimitBytes bytes, int rating) {
  Limits limits;
  limits.uvco = point(kUnderShutdown, bytes.shutdown, rating);
  limits.uvre = point(kUnderRecord, bytes.record, rating);
  limits.uvrs = rating == 240 ? 190 : 105;
  limits.ovrs = overRestore(bytes.shutdown >> 4, rating);
  limits.ovre = point(kOverRecord, bytes.record >> 4, rating);
  limits.ovco = point(kOverShutdown, bytes.shutdown >> 4, rating);
  return limits;
}

}  // namespace zephon::simulator
