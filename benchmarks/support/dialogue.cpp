#include "support/dialogue.h"

#include "protocol/meters.h"
#include "simulator/options.h"

namespace zephon::benchmarks {
namespace {

constexpr double kBitsPerByte = 10;

constexpr double kAfterMeter = 10;
constexpr double kBeforeCounts = 20;

constexpr int kPasses = 5;
constexpr int kSamples = 50;
constexpr double kBeforeImport = 100 + 100;
constexpr double kBeforeSpan = 20;
constexpr double kAfterImport = 50;
constexpr double kBeforeOutlets = 50;
constexpr double kAfterOutlets = 50;
constexpr double kBeforeLineGround = 50;
constexpr double kAfterVolts = 50;

constexpr int kTries = 10;
constexpr double kAfterTry = 400;

constexpr const DeviceCommand* kCounts[] = {
    &orvantis::kPoCount,   &orvantis::kUvcoCount, &orvantis::kUvreCount, &orvantis::kOvreCount,
    &orvantis::kOvcoCount, &orvantis::kSgCount,   &orvantis::kOlCount};

void ask(Dialogue& dialogue, const DeviceCommand& command, int times = 1) {
  dialogue.insert(dialogue.end(), static_cast<std::size_t>(times), Step{&command});
}

void pause(Dialogue& dialogue, double milliseconds) {
  dialogue.push_back({nullptr, milliseconds});
}

void importMemory(Dialogue& pass) {
  pause(pass, kBeforeImport);
  ask(pass, tessara::kImage);
  pause(pass, kBeforeSpan);
  ask(pass, tessara::kSinceNewest);
  pause(pass, kAfterImport + kBeforeOutlets);
  ask(pass, tessara::kOutlets);
  pause(pass, kAfterOutlets);
}

}  // namespace

Dialogue firstLinePass() {
  Dialogue pass;
  for (const Meter& meter : kMeters) {
    ask(pass, *meter.read);
    if (meter.id != MeterId::CF) pause(pass, kAfterMeter);
  }
  pause(pass, kBeforeCounts);
  for (const DeviceCommand* count : kCounts) ask(pass, *count);
  ask(pass, orvantis::kEnergy);
  return pass;
}

Dialogue secondLineCycle() {
  Dialogue cycle;
  importMemory(cycle);
  for (int pass = 0; pass < kPasses; ++pass) {
    pause(cycle, kBeforeLineGround);
    ask(cycle, tessara::kVlgSample, kSamples);
    pause(cycle, kAfterVolts);
    ask(cycle, tessara::kVngSample, kSamples);
    pause(cycle, kAfterVolts);
  }
  return cycle;
}

Millis pausesOf(const Dialogue& dialogue) {
  Millis total{};
  for (const Step& step : dialogue) total += Millis(step.pauseMs);
  return total;
}

Millis exchangesOf(const Dialogue& dialogue, int baud) {
  const double answer = simulator::Options{}.answerMs;
  Millis total{};
  for (const Step& step : dialogue) {
    if (!step.command) continue;
    const auto bytes = static_cast<double>(step.command->text.size()) + step.command->replyBytes;
    total += Millis(bytes * kBitsPerByte * 1000 / baud + answer);
  }
  return total;
}

Millis deadFirstLinePass() {
  return Millis(orvantis::kVlnRms.timeoutMs);
}

Millis deadSecondLinePass() {
  return Millis(kBeforeLineGround + kTries * tessara::kVlgSample.timeoutMs + (kTries - 1) * kAfterTry);
}

}  // namespace zephon::benchmarks
