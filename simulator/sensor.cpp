#include "simulator/sensor.h"

#include <algorithm>
#include <array>

namespace zephon::simulator {
namespace {

constexpr double kZeroCount = 5.0;  // the converter's count without any input

double count120(double volts) {
  return (volts < 26.0 ? volts - 16.0 : volts - 20.0) * 6.0 / 5.0;
}

// What the divider of a 240 V device sees in place of a low voltage. It jumps at 65 and at 95 V.
double lifted(double volts) {
  if (volts < 55.2) return std::min((volts + 31.25) / 1.3125, 64.9);
  if (volts < 94.4) return std::clamp((volts + 25.0) / 1.25, 65.0, 94.9);
  return std::max(volts, 95.0);
}

struct Step {
  double from;   // volts
  double added;  // volts
};

// The first row whose `from` is reached counts.
constexpr std::array<Step, 9> kRectifier = {{
    {276.0, 4.0},
    {247.5, 3.0},
    {238.5, 2.0},
    {227.5, 1.0},
    {159.5, 0.0},
    {143.5, 1.0},
    {127.5, 2.0},
    {119.5, 3.0},
    {115.5, 4.0},
}};

double rectified(double volts) {
  for (const Step& step : kRectifier) {
    if (volts >= step.from) return volts + step.added;
  }
  return volts + (volts >= 99.5 ? 5.0 : 6.0);
}

double count240(double volts, bool centreTapped) {
  return (rectified(lifted(volts) - (centreTapped ? 10.0 : 0.0)) - 24.0) / 1.485;
}

}  // namespace

double lineGroundCount(double volts, int rating, bool centreTapped) {
  return kZeroCount + (rating == 240 ? count240(volts, centreTapped) : count120(volts));
}

double neutralGroundCount(double volts) {
  return volts < 4.0 ? volts : volts - 1.0;
}

}  // namespace zephon::simulator
