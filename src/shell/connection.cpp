#include "shell/connection.h"

#include <utility>

#include "comm/cable.h"
#include "comm/mod_comm.h"
#include "display/link_status.h"
#include "protocol/advice_text.h"
#include "protocol/clock.h"
#include "protocol/dict_text.h"
#include "protocol/exchange.h"
#include "protocol/firmware_gates.h"
#include "protocol/identity.h"
#include "protocol/model_names.h"
#include "protocol/visit.h"
#include "text/number.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyLinkLost = 46;
constexpr std::size_t kKeyCheckCable = 68;

std::string settings(const Main& main) {
  const std::string baud = main.link.modelLine == 1 ? "9600" : "115200";
  return "baud=" + baud + " parity=N data=8 stop=1";
}

// Requests to send and ready, or neither. A line without modem lines refuses, and works all the same.
void setModemLines(Main& main, bool on) {
  CommSetLine(portOf(main), main.link.commPort, kLineRts, on);
  CommSetLine(portOf(main), main.link.commPort, kLineDtr, on);
}

void closePort(Main& main) {
  setModemLines(main, false);
  CommClose(portOf(main), main.link.commPort);
}

// The port can't be opened: the system's words, and what to do about it. The data page works without a
// device.
bool openFailed(Main& main) {
  std::string text;
  const std::int32_t code = CommGetError(main.link.table, text);
  const std::string advice = adviceText(main, portName(main.link), code);
  showLinkFailure(main, text, advice);
  if (!main.frame.dataBtn.value()) main.around.dialogs.message("COM Error: " + text, advice);
  main.link.openFailed = true;
  return false;
}

enum class Answer { Yes, No, CantOpen };

// Asks as the line assumed, then once as the other one.
Answer findModelLine(Main& main, const PageVisit& visit) {
  if (!openPort(main)) return Answer::CantOpen;
  if (settleLine(main) && getFirmwareVersion(main)) return Answer::Yes;
  if (!stands(main, visit)) return Answer::No;
  main.link.modelLine = static_cast<std::int16_t>((main.link.modelLine + 1) % 2);
  closePort(main);
  if (!openPort(main)) return Answer::CantOpen;
  forgetAbandonedReply(main);
  return getFirmwareVersion(main) ? Answer::Yes : Answer::No;
}

void showModel(Main& main) {
  const bool first = main.link.modelLine == 0;
  const std::string fonts = main.around.folders.program + "/Fonts/";
  main.frame.image998.setPath(first ? fonts + "LowerRV.gif" : std::string());
  main.frame.image999.setPath(first ? std::string() : fonts + "LowerTR.gif");
  main.frame.image998.setVisible(first);
  main.frame.image999.setVisible(!first && main.config.bannerDisplay);
  main.frame.modelLbl.setCaption(modelName(main.link.modelLine));
}

// The scales on which the rated voltage and its full load stand in the middle and in the upper third.
void fitAxes(Main& main) {
  const bool high = main.link.nominalVolts > 120;
  main.measurement.VlnSlide.setAxis(high ? Slider::Axis{160, 320, 20, 10} : Slider::Axis{80, 160, 10, 5});
  main.measurement.PSlide.setAxis(high ? Slider::Axis{0, 6000, 1000, 500} : Slider::Axis{0, 3000, 500, 250});
}

// The first line tells its rating; the second one by a mark in its version text.
bool readRating(Main& main) {
  std::int32_t rating = hasHighRatingMark(main.link.firmwareVersion) ? 240 : 120;
  if (main.link.modelLine == 0) rating = getDecimal(main, orvantis::kRating);
  if (rating == -1) return false;
  main.link.nominalVolts = static_cast<std::int16_t>(rating);
  main.link.ratedVolts = main.link.nominalVolts;
  fitAxes(main);
  return true;
}

bool identify(Main& main) {
  main.link.yOrCTflag = false;  // only a device that knows its wiring sets it
  if (!getChipID(main) || !getUserID(main) || !readRating(main)) return false;
  return !tellsWiring(kindOf(main.link)) || getYorCT(main) != 0;
}

void closeLink(Main& main) {
  closePort(main);
  main.link.connected = main.link.identified = false;
  // What was asked of this device is not for the next one.
  main.counters.clearCountsRequest = main.energy.clearEnergyRequest = false;
  main.frame.comBtn.setVisible(true);
  if (!main.link.openFailed) showLinkState(main);  // otherwise the reason stays in sight
}

void zeroPointers(Slider& slider, std::size_t from) {
  for (std::size_t i = from; i < slider.pointers(); ++i) slider.setPointerValue(i, 0);
}

}  // namespace

bool openPort(Main& main) {
  CommFlush(portOf(main), main.link.commPort);
  if (CommOpen(portOf(main), main.link.commPort, portName(main.link), settings(main)) != 0) return false;
  main.link.table.lastCommError = {};  // what failed on a closed port says nothing of this connection
  setModemLines(main, true);
  return true;
}

bool connectSub(Main& main) {
  const PageVisit visit = main.pages.wanted;
  main.link.openFailed = main.link.identified = false;
  resetDisplays(main);
  if (main.config.checkComSettings && !checkCOMsettings(main)) {
    main.around.dialogs.message(dictText(main, kKeyCheckCable), std::exchange(main.exchange.shortfall, {}));
    if (!stands(main, visit)) return false;
  }
  main.link.commPort = toInt16(numberAtStart(main.frame.COMlbl.caption())).value_or(1);
  showConnecting(main);
  const Answer answer = findModelLine(main, visit);
  if (!stands(main, visit)) return false;
  if (answer == Answer::CantOpen) return openFailed(main);
  if (answer == Answer::No) return false;
  main.link.connected = true;
  showModel(main);
  main.frame.comBtn.setVisible(false);
  const bool identified = identify(main);
  if (!stands(main, visit)) return false;  // the line may be another visit's by now
  main.link.identified = identified;
  if (identified) showLinkState(main);
  return identified;
}

void disconnectSub(Main& main) {
  if (main.pages.scopeOn) {
    main.pages.scopeOn = false;
    wait(main, 10);
  }
  closeLink(main);
}

void errorSub(Main& main) {
  if (main.ending) return;
  FrameElements& f = main.frame;
  const LostLink lost = lostLink(main, main.exchange.lastFailure);
  const std::string shortfall = std::exchange(main.exchange.shortfall, {});
  const int told = main.link.lossesTold;
  main.link.identified = false;  // a page pressed meanwhile connects afresh
  endAllVisits(main);
  const PageVisit none = main.pages.wanted;
  for (Button* page : {&f.measBtn, &f.ScopeBtn, &f.ChartBtn, &f.outletsBtn, &f.dataBtn, &f.setupBtn}) {
    if (!stands(main, none)) break;  // the user has opened a page again, or closed the window
    page->setValue(false);
  }
  if (stands(main, none)) {
    closeLink(main);
    if (!main.link.openFailed) showLinkLost(main, lost);
  }
  if (main.ending || main.link.openFailed || main.link.lossesTold != told) return;
  ++main.link.lossesTold;
  main.around.dialogs.message(dictText(main, kKeyLinkLost), shortfall.empty() ? lost.advice : shortfall);
}

void closeHalfOpen(Main& main) {
  if (!main.link.connected) closePort(main);
}

void resetDisplays(Main& main) {
  MeasurementElements& m = main.measurement;
  const struct {
    Label& label;
    Slider& slider;
    const char* unit;
  } meters[] = {{m.VlnLbl, m.VlnSlide, "V"}, {m.Ilbl, m.ISlide, "A"},  {m.Plbl, m.PSlide, "W"},
                {m.VngLbl, m.VngSlide, "V"}, {m.fLbl, m.fSlide, "Hz"}, {m.pfLbl, m.pfSlide, "PF"},
                {m.cfLbl, m.cfSlide, "CF"}};
  for (const auto& meter : meters) {
    meter.label.setCaption(meter.unit);
    meter.label.setStale(false);
    meter.slider.setPointerColour(0, kUnjudged);
    zeroPointers(meter.slider, 0);
  }
  zeroPointers(m.recSlide, 1);
  main.counters = {};
  for (TextBox* box : {&m.POrecTxt, &m.UVcorecTxt, &m.UVrerecTxt, &m.OVrerecTxt, &m.OVcorecTxt, &m.SGrecTxt,
                       &m.OLrecTxt, &m.EUtxt}) {
    box->setText("");
    box->setStale(false);
  }
  m.EnCostLbl.setCaption("");
}

}  // namespace zephon
