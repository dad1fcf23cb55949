#include "protocol/scope_capture.h"

#include "protocol/scope_samples.h"
#include "protocol/stay.h"

namespace zephon {
namespace {

constexpr double kPauseMs = 10;
constexpr std::int32_t kReadSize = 4096;

void keep(Capture& capture, ScopeSamples samples) {
  capture.scopeV = std::move(samples.volts);
  capture.scopeA = std::move(samples.amperes);
  capture.scopeW = std::move(samples.watts);
  capture.capturedMode = capture.scopeModeNow;
  capture.capturedXScale = capture.xScale;
}

}  // namespace

bool scopeStart(Main& main) {
  const Stay stay(main);
  if (!stay.wait(kPauseMs)) return false;
  flushPort(main);
  const CaptureKind* kind = captureKind(main.capture.scopeModeNow);
  if (!kind) {
    scopeStop(main);
    return stay.stands();
  }
  main.exchange.replyAbandoned = true;  // until it is here: whoever takes the line first waits for its rest
  for (std::size_t left = captureCommands(main.capture.xScale);;) {
    if (!sendText(main, kind->command->text) || !stay.stands()) return false;
    if (--left == 0) return true;
    if (!stay.wait(kPauseMs)) return false;
  }
}

void scopeStop(Main& main) {
  wait(main, kPauseMs);
}

bool scopeMode(Main& main) {
  Capture& capture = main.capture;
  Exchange& exchange = main.exchange;
  const CaptureKind* kind = captureKind(capture.scopeModeNow);
  if (!kind) return true;
  const std::size_t wanted = captureBytes(*kind, capture.xScale);
  const auto resized = [&main] { return main.formSize != main.capture.sizeRead; };
  exchange.timedOut = false;
  const auto reply = gather(main, kind->command->timeoutMs, kReadSize, [&](const std::string& gathered) {
    return gathered.size() >= wanted || resized();
  });
  if (!reply) return false;
  exchange.replyAbandoned = resized();
  if (resized()) {
    flushPort(main);
    exchange.replyBuffer.clear();
    return false;
  }
  main.logs.rawLogBuffer = *reply;
  keep(capture, decodeCapture(*reply, capture.scopeModeNow, captureSamples(capture.xScale)));
  return true;
}

}  // namespace zephon
