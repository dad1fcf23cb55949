#include "protocol/outlets.h"

#include "protocol/dict_text.h"
#include "protocol/exchange.h"
#include "protocol/stay.h"

namespace zephon {
namespace {

// Key 0 is no text.
std::string stateText(const Main& main, std::size_t key) {
  return key == 0 ? std::string() : dictText(main, key);
}

void showOnTexts(Main& main) {
  Button& onOff = main.outlets.oOnBtn;
  Button& cycle = main.outlets.oCycBtn;
  if (onOff.onText().empty()) onOff.setOnText(dictText(main, kKeyOutletsOn));
  onOff.setOffText({});
  cycle.setOnText({});
  if (cycle.offText().empty()) cycle.setOffText(dictText(main, kKeyCycle));
}

void showTexts(Main& main, const OutletState& state) {
  main.outlets.oOnBtn.setOnText({});
  main.outlets.oOnBtn.setOffText(stateText(main, state.offKey));
  main.outlets.oCycBtn.setOnText(stateText(main, state.cycleKey));
  main.outlets.oCycBtn.setOffText({});
  if (state.faultKey != 0) main.outlets.oFltBtn.setOnText(dictText(main, state.faultKey));
}

bool show(Main& main, const std::optional<std::string>& reply) {
  const OutletState* state = reply ? outletState(*reply, main.link.modelLine) : nullptr;
  if (state) showOutlets(main, *state);
  return state != nullptr;
}

bool switchFirstLine(Main& main, const DeviceCommand& command) {
  flushPort(main);
  sendText(main, command.text);
  return Stay(main).wait(200) && getOK(main);
}

// No answer comes; the pause leaves the device its time.
bool switchSecondLine(Main& main, const DeviceCommand& command, double pauseMs) {
  flushPort(main);
  sendText(main, command.text);
  if (pauseMs > 0) wait(main, pauseMs);
  return true;
}

}  // namespace

void showOutlets(Main& main, const OutletState& state) {
  OutletElements& o = main.outlets;
  o.oOnBtn.setEnabled(false);  // so that the change of value does not act as a press
  o.oCycBtn.setEnabled(false);
  o.oOnBtn.setValue(state.on);
  o.oCycBtn.setValue(state.cycles);
  o.oFltBtn.setValue(state.fault);
  state.on ? showOnTexts(main) : showTexts(main, state);
  o.oOnBtn.setEnabled(state.mayTurn);
  o.oCycBtn.setEnabled(state.mayCycle);
}

bool getOutlets(Main& main) {
  return show(main, wholeReply(main, orvantis::kOutlets));
}

bool getOutletsTR(Main& main) {
  return Stay(main).wait(50) && show(main, wholeReply(main, tessara::kOutlets));
}

bool readOutlets(Main& main) {
  return main.link.modelLine == 0 ? getOutlets(main) : getOutletsTR(main);
}

bool setOutletsOn(Main& main) {
  return main.link.modelLine == 0 ? switchFirstLine(main, orvantis::kOutletsOn)
                                  : switchSecondLine(main, tessara::kOutletsOn, 0);
}

bool setOutletsOff(Main& main) {
  return main.link.modelLine == 0 ? switchFirstLine(main, orvantis::kOutletsOff)
                                  : switchSecondLine(main, tessara::kOutletsOff, 40);
}

bool setOutletsCyc(Main& main) {
  return main.link.modelLine == 0 ? switchFirstLine(main, orvantis::kOutletsCycle)
                                  : switchSecondLine(main, tessara::kOutletsCycle, 40);
}

}  // namespace zephon
