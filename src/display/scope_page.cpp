#include "display/scope_page.h"

#include <algorithm>
#include <utility>

#include "display/scope_channels.h"
#include "display/scope_controls.h"
#include "display/scope_plot.h"
#include "protocol/scope_capture.h"
#include "protocol/scope_samples.h"
#include "protocol/stay.h"
#include "text/number.h"
#include "text/picture.h"

namespace zephon {
namespace {

constexpr int kMostFailures = 5;
constexpr double kAtOnceMs = 1;
constexpr double kBetweenMs = 10;
constexpr double kHeldMs = 400;

void nextPass(Main& main, double afterMs) {
  main.timers.scopeTimer.setInterval(afterMs);
  main.timers.scopeTimer.setEnabled(true);
}

bool anyChannelOn(const Main& main) {
  return std::any_of(kScopeChannels.begin(), kScopeChannels.end(),
                     [&main](const ScopeChannel& channel) { return (main.scope.*channel.toggle).value(); });
}

// A device that was sending in another mode gets a moment. False when the page was left.
bool settleMode(Main& main, const Stay& stay) {
  Capture& capture = main.capture;
  if (std::exchange(capture.modeBefore, capture.scopeModeNow) == capture.scopeModeNow) return true;
  if (!stay.wait(20)) return false;
  scopeStop(main);
  return stay.wait(200);
}

void fireOneShot(Main& main) {
  if (!main.scope.holdBtn.value() || main.capture.scopeHeld || !triggers(main.capture)) return;
  main.capture.scopeHeld = true;
  showHold(main);
}

// A capture that was given up may still be coming in: the next one waits for its end.
bool captureOnce(Main& main) {
  if (!settleLine(main) || !scopeStart(main) || !scopeMode(main)) return false;
  if (main.capture.scopeModeNow == 0) return true;
  showCapture(main);
  fireOneShot(main);
  return true;
}

// What the user has asked for during the capture.
void takeOver(Capture& capture) {
  if (std::exchange(capture.scopeModeChanged, false))
    capture.scopeModeNow = std::exchange(capture.scopeModeNext, 0);
  capture.xScale = capture.xScaleNext;
}

void succeeded(Main& main) {
  Capture& capture = main.capture;
  capture.failures = 0;
  main.scope.xTimeLbl.setCaption(shortestText(capture.xScale * kMsPerDivision) + " ms/Div");
  takeOver(capture);
  flushPort(main);
  nextPass(main, kBetweenMs);
}

void failed(Main& main, const PageExits& exits) {
  Capture& capture = main.capture;
  if (!capture.formResized) ++capture.failures;
  if (!main.link.connected || capture.failures <= kMostFailures) return nextPass(main, kAtOnceMs);
  main.pages.scopeOn = false;
  exits.linkLost();
}

// One pass of the loop. What is pressed meanwhile is served inside it.
void pass(Main& main, const PageExits& exits) {
  main.timers.scopeTimer.setEnabled(false);
  const Stay stay(main);
  if (main.capture.scopeHeld) {
    main.frame.saveBtn.setVisible(anyChannelOn(main));
    return nextPass(main, kHeldMs);
  }
  main.frame.saveBtn.setVisible(false);
  if (!settleMode(main, stay)) return;
  const bool good = captureOnce(main);
  if (!stay.stands()) return;
  main.capture.formResized = std::exchange(main.capture.sizeRead, main.formSize) != main.formSize;
  good ? succeeded(main) : failed(main, exits);
}

void setVisible(ScopeElements& s, bool on) {
  for (Element* element :
       std::initializer_list<Element*>{&s.CH1togBtn, &s.CH2togBtn, &s.CH3togBtn, &s.p1upBtn, &s.p1downBtn,
                                       &s.p2upBtn, &s.p2downBtn, &s.p3upBtn, &s.p3downBtn, &s.XinBtn,
                                       &s.XoutBtn, &s.oneShotVbtn, &s.oneShotAbtn, &s.holdBtn, &s.xTimeLbl})
    element->setVisible(on);
}

void swapBytes(Main& main) {
  std::swap(main.logs.rawLogBuffer, main.capture.otherBytes);
}

}  // namespace

void wireScopePage(Main& main, const PageExits& exits) {
  wireScopeControls(main);
  main.timers.scopeTimer.onTick = [&main, exits] { pass(main, exits); };
}

void layScopePage(Main& main) {
  if (!std::exchange(main.capture.pageShown, true)) swapBytes(main);
  setUpScopeGraph(main);
  showHold(main);
  setVisible(main.scope, true);
}

bool startScopePage(Main& main) {
  Capture& capture = main.capture;
  main.exchange.timedOut = false;
  capture.sizeRead = main.formSize;
  capture.formResized = false;
  capture.failures = 0;
  capture.modeBefore = capture.scopeModeNow;
  nextPass(main, kAtOnceMs);
  return true;
}

void clearScopePage(Main& main) {
  if (!main.capture.pageShown) return;
  main.capture.pageShown = false;
  main.timers.scopeTimer.setEnabled(false);
  swapBytes(main);
  setVisible(main.scope, false);
  main.frame.saveBtn.setVisible(false);
  main.frame.CWGraph2.setUp({}, {}, {});
  main.frame.CWGraph2.setVisible(false);
}

bool triggers(const Capture& capture) {
  const double level = capture.oneShotLevel;
  if (capture.oneShotMode == 0 || level == 0) return false;
  const std::vector<double>& samples = capture.oneShotMode == 1 ? capture.scopeV : capture.scopeA;
  if (samples.empty()) return false;
  const auto half = toInt32(static_cast<double>(samples.size() - 1) / 2);
  return std::any_of(samples.begin(), samples.begin() + half.value_or(0) + 1,
                     [level](double sample) { return level > 0 ? sample > level : sample < level; });
}

}  // namespace zephon
