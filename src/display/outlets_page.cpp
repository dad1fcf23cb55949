#include "display/outlets_page.h"

#include "protocol/dict_text.h"
#include "protocol/outlets.h"
#include "protocol/stay.h"

namespace zephon {
namespace {

constexpr double kFirstPollMs = 10;
constexpr double kPollMs = 1000;

void poll(Main& main, double afterMs) {
  main.timers.outletTimer.setInterval(afterMs);
  main.timers.outletTimer.setEnabled(true);
}

// The end of a handler that comes back from the line: goes on polling, or tells that the link is lost. The
// page may have been left meanwhile.
void finish(Main& main, const PageExits& exits, const Stay& stay, bool good) {
  if (!stay.stands()) return;
  if (good) return poll(main, kPollMs);
  main.pages.outletsOn = false;
  exits.linkLost();
}

// The timer runs once for each poll, so that slow exchanges can't pile up. Where it runs again at the end, a
// press came in between, took the line, and has started it: then the poll's own result means nothing.
void tick(Main& main, const PageExits& exits) {
  main.timers.outletTimer.setEnabled(false);
  if (!main.pages.outletsOn) return;
  const Stay stay(main);
  const bool good = readOutlets(main);
  if (!main.timers.outletTimer.enabled()) finish(main, exits, stay, good);
}

// Both act on a press of the left button, after its value has turned. False when the device did not take
// part.
using Act = bool (*)(Main&);

// While the outlets are on, the text that could be read before the press is the one for on.
bool pressOnOff(Main& main) {
  Button& button = main.outlets.oOnBtn;
  if (button.value()) return setOutletsOn(main);
  if (button.onText() == dictText(main, kKeyOutletsOn)) {
    button.setOnText(dictText(main, kKeyConfirmOff));
    button.setValue(true);
    return readOutlets(main);
  }
  if (button.onText() != dictText(main, kKeyConfirmOff)) return false;
  button.setOnText({});  // an armed press counts once
  return setOutletsOff(main);
}

bool pressCycle(Main& main) {
  Button& button = main.outlets.oCycBtn;
  if (button.offText() == dictText(main, kKeyCycle)) {
    button.setOffText(dictText(main, kKeyConfirmCycle));
    return readOutlets(main);
  }
  if (button.offText() != dictText(main, kKeyConfirmCycle)) return true;
  button.setOffText({});
  return setOutletsCyc(main);
}

bool takeBack(Main& main, Button& button) {
  button.setTexts({});
  return readOutlets(main);
}

void blank(Button& button) {
  button.setValue(false);
  button.setTexts({});
}

// Nothing else is asked or pressed until the device has told its state.
void hold(Main& main) {
  main.timers.outletTimer.setEnabled(false);
  main.outlets.oOnBtn.setEnabled(false);
  main.outlets.oCycBtn.setEnabled(false);
}

void wireCommand(Main& main, const PageExits& exits, Button& button, Button& other, Act act) {
  button.onMouseUp = [&main, exits, &button, &other, act](MouseButton mouse) {
    if (!button.enabled()) return;
    const Stay stay(main);
    hold(main);
    main.exchange.Timer1.setEnabled(false);  // a poll under way gives up the line
    if (mouse == MouseButton::Right) return finish(main, exits, stay, takeBack(main, button));
    blank(other);
    finish(main, exits, stay, act(main));
  };
}

}  // namespace

void wireOutletsPage(Main& main, const PageExits& exits) {
  OutletElements& outlets = main.outlets;
  wireCommand(main, exits, outlets.oOnBtn, outlets.oCycBtn, pressOnOff);
  wireCommand(main, exits, outlets.oCycBtn, outlets.oOnBtn, pressCycle);
  main.timers.outletTimer.onTick = [&main, exits] { tick(main, exits); };
}

void startOutletsPage(Main& main) {
  hold(main);
  main.outlets.oOnBtn.setTexts({});
  main.outlets.oCycBtn.setTexts({});
  poll(main, kFirstPollMs);
}

}  // namespace zephon
