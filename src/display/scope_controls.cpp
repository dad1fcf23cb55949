#include "display/scope_controls.h"

#include "display/scope_channels.h"
#include "display/scope_plot.h"
#include "protocol/dict_text.h"
#include "text/picture.h"

namespace zephon {
namespace {

using S = ScopeElements;

constexpr std::size_t kKeyWaiting = 24;
constexpr std::size_t kKeyHold = 25;
constexpr float kLongest = 4;
constexpr float kShortest = 0.125;
constexpr float kLevelDivisions = 3;

// What each armed mode goes by, in the order of oneShotMode.
struct OneShot {
  Button S::*button;
  Button S::*other;
  float Capture::*scale;
};
constexpr std::array<OneShot, 2> kOneShots = {{{&S::oneShotVbtn, &S::oneShotAbtn, &Capture::ch1Scale},
                                               {&S::oneShotAbtn, &S::oneShotVbtn, &Capture::ch2Scale}}};

std::int16_t wantedMode(const ScopeElements& scope) {
  if (scope.CH3togBtn.value()) return 3;
  return static_cast<std::int16_t>((scope.CH1togBtn.value() ? 1 : 0) + (scope.CH2togBtn.value() ? 2 : 0));
}

void channelChanged(Main& main) {
  main.capture.scopeModeNext = wantedMode(main.scope);
  main.capture.scopeModeChanged = true;
  showChannels(main);
}

void captionScale(Main& main, const ScopeChannel& channel) {
  const std::string text = channel.label + shortestText(main.capture.*channel.scale) + channel.unit + "/Div";
  (main.scope.*channel.up).setTexts(text);
  (main.scope.*channel.down).setTexts(text);
}

void rescale(Main& main, std::size_t i, float factor) {
  const ScopeChannel& channel = kScopeChannels[i];
  const float scale = main.capture.*channel.scale * factor;
  if (!(main.scope.*channel.toggle).value()) return;
  if (scale < channel.smallest || scale > channel.largest) return;
  main.capture.*channel.scale = scale;
  captionScale(main, channel);
  showScale(main, i);
}

void stretch(Main& main, float factor) {
  if (!main.frame.ScopeBtn.value()) return;
  const float wanted = main.capture.xScaleNext * factor;
  if (wanted >= kShortest && wanted <= kLongest) main.capture.xScaleNext = wanted;
}

void arm(Main& main, std::size_t i) {
  const OneShot& one = kOneShots[i];
  main.capture.oneShotMode = static_cast<std::int16_t>(i + 1);
  main.capture.oneShotLevel = main.capture.*one.scale * kLevelDivisions;
  (main.scope.*one.other).setValue(false);
  showCursors(main);
}

// Without a trigger to wait for there is nothing to hold.
void disarm(Main& main, const OneShot& one) {
  if ((main.scope.*one.other).value()) return;
  main.capture.oneShotMode = 0;
  showCursors(main);
  if (!main.capture.scopeHeld) main.scope.holdBtn.setValue(false);
}

void hold(Main& main, bool on) {
  main.capture.scopeHeld = on && main.capture.oneShotMode == 0;
  showHold(main);
}

void wirePress(Button& button, const std::function<void()>& press) {
  button.onChange = [press](bool pressed) {
    if (pressed) press();
  };
}

}  // namespace

void wireScopeControls(Main& main) {
  for (std::size_t i = 0; i < kScopeChannels.size(); ++i) {
    const ScopeChannel& channel = kScopeChannels[i];
    (main.scope.*channel.toggle).onChange = [&main](bool /*on*/) { channelChanged(main); };
    wirePress(main.scope.*channel.up, [&main, i] { rescale(main, i, 2); });
    wirePress(main.scope.*channel.down, [&main, i] { rescale(main, i, 0.5); });
    captionScale(main, channel);
  }
  wirePress(main.scope.XoutBtn, [&main] { stretch(main, 2); });
  wirePress(main.scope.XinBtn, [&main] { stretch(main, 0.5); });
  for (std::size_t i = 0; i < kOneShots.size(); ++i) {
    (main.scope.*kOneShots[i].button).onChange = [&main, i](bool on) {
      on ? arm(main, i) : disarm(main, kOneShots[i]);
    };
  }
  main.scope.holdBtn.onChange = [&main](bool on) { hold(main, on); };
  main.scope.CH1togBtn.setValue(true);
}

void showHold(Main& main) {
  const Capture& capture = main.capture;
  const bool waiting = main.scope.holdBtn.value() && capture.oneShotMode != 0 && !capture.scopeHeld;
  main.scope.holdBtn.setTexts(dictText(main, waiting ? kKeyWaiting : kKeyHold));
}

}  // namespace zephon
