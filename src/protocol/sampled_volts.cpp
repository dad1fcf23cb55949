#include "protocol/sampled_volts.h"

#include <array>

#include "protocol/measurement_show.h"
#include "protocol/stay.h"
#include "text/number.h"
#include "text/picture.h"

namespace zephon {
namespace {

constexpr int kSamples = 50;
constexpr int kMostTries = 10;
constexpr std::int32_t kSampleRead = 10;
constexpr int kLineGroundZero = 48;  // the code of a line-ground sample of 0

struct Step {
  float bound;
  float less;
};
// The first row that the reading is above, or below, counts.
constexpr std::array<Step, 4> kUpperSteps = {{{280, 4}, {250, 3}, {240, 2}, {228, 1}}};
constexpr std::array<Step, 6> kLowerSteps = {{{105, 6}, {120, 5}, {123, 4}, {130, 3}, {145, 2}, {160, 1}}};

float lessUpperStep(float reading) {
  for (const Step& step : kUpperSteps) {
    if (reading > step.bound) return reading - step.less;
  }
  return reading;
}

float lessLowerStep(float reading) {
  for (const Step& step : kLowerSteps) {
    if (reading < step.bound) return reading - step.less;
  }
  return reading;
}

// The 240 V divider. Above 228 volts the lower steps are out of reach.
float dividedVolts(float raw, bool centerTap) {
  const float scaled = raw * 1.65f;
  float reading = (240.0f - scaled) / 10.0f;
  reading += scaled;
  reading = lessLowerStep(lessUpperStep(reading));
  return centerTap ? reading + 10.0f : reading;
}

float plainVolts(float raw) {
  const float part = (120.0f - raw) / 6.0f;
  return part + raw;
}

float lowEnd240(float reading) {
  if (reading < 65) return reading + (reading - 100.0f) / 3.2f;
  if (reading < 95) return reading + (reading - 100.0f) / 4.0f;
  return reading;
}

float whole(float reading) {
  return static_cast<float>(toInt32(reading).value_or(0));
}

// One sample's byte; nothing when it stays out, or the visit is over.
std::optional<std::uint8_t> readSample(Main& main, const Stay& stay, const DeviceCommand& command) {
  flushPort(main);
  sendText(main, command.text);  // a line that takes too few bytes shows as a reply that stays out
  main.exchange.timedOut = false;
  if (!stay.stands()) return {};
  const auto reply =
      gather(main, command.timeoutMs, kSampleRead, [](const std::string& all) { return !all.empty(); });
  if (!reply) return {};
  return static_cast<std::uint8_t>(reply->back());
}

// The sum of 50 samples. One that stays out starts the sum anew at number 0, so that the first sample after the
// silence counts as none, though it is summed: of 51 in all, of which the average takes 50. That reading is up
// to two hundredths high; the next one is right.
std::optional<std::int32_t> sumOfSamples(Main& main, const DeviceCommand& command, int zero) {
  const Stay stay(main);
  std::int32_t sum = 0;
  int number = 1;
  int tries = 0;
  for (;;) {
    ++tries;
    if (const auto sample = readSample(main, stay, command)) {
      tries = 0;
      sum += *sample - zero;
      if (number > 0 && number % kSamples == 0) return sum;
      ++number;
      continue;
    }
    if (!stay.stands() || main.exchange.lastFailure != ExchangeFailure::TimedOut) return {};
    if (tries == kMostTries) return {};
    number = 0;
    sum = 0;
    if (!stay.wait(400)) return {};
  }
}

}  // namespace

float lineGroundVolts(std::int32_t sum, int nominalVolts, bool centerTap) {
  float raw = static_cast<float>(sum) / kSamples;
  raw -= 5.0f;
  const bool is240 = nominalVolts == 240;
  float reading = is240 ? dividedVolts(raw, centerTap) : plainVolts(raw);
  if (reading < 30) reading = plainVolts(raw) - 4.0f;
  if (is240) reading = lowEnd240(reading);
  reading = whole(reading);
  const bool blind = (nominalVolts == 120 && reading < 20) || (is240 && reading < 40);
  return blind ? 0.0f : reading;
}

float neutralGroundVolts(std::int32_t sum) {
  float raw = static_cast<float>(sum) / kSamples;
  if (raw > 3.0f) raw += 1.0f;
  const float reading = whole(raw);
  return reading < 3 ? 0.0f : reading;
}

std::optional<std::string> neutralGroundText(float volts) {
  if (volts == 100) return {};
  return volts < 3 ? "0-3 V" : formatPicture(volts, "0") + " V";
}

bool getVLGtr(Main& main) {
  if (!Stay(main).wait(50)) return false;
  const auto sum = sumOfSamples(main, tessara::kVlgSample, kLineGroundZero);
  if (!sum) return false;
  const float volts = lineGroundVolts(*sum, main.link.nominalVolts, main.link.yOrCTflag);
  showReading(main, meterOf(MeterId::Vln), volts, formatPicture(volts, "0") + " V");
  return true;
}

bool getVNGtr(Main& main) {
  const auto sum = sumOfSamples(main, tessara::kVngSample, 0);
  if (!sum) return false;
  const float volts = neutralGroundVolts(*sum);
  showReading(main, meterOf(MeterId::Vng), volts, neutralGroundText(volts));
  return true;
}

}  // namespace zephon
