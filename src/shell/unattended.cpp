#include "shell/unattended.h"

#include <cstdio>

#include "protocol/measurement.h"
#include "protocol/thresholds.h"
#include "shell/connection.h"
#include "shell/page_layout.h"

namespace zephon {
namespace {

constexpr int kTries = 4;
constexpr int kCantOpen = 3;
constexpr int kNoAnswer = 4;

// Everything that the measurement page would show for this device; that also tells the pass what to read.
bool measure(Main& main) {
  if (!getThresholds(main)) return false;
  main.pages.measuring = true;
  pageLayout(main);
  for (int attempt = 0; attempt < kTries; ++attempt) {
    if (getMeasurements(main)) return true;
  }
  return false;
}

void printReadings(const Main& main) {
  const MeasurementElements& m = main.measurement;
  std::printf("%s\n", main.frame.linkLbl.caption().c_str());
  for (const Label* label : {&m.VlnLbl, &m.Ilbl, &m.Plbl, &m.VngLbl, &m.fLbl, &m.pfLbl, &m.cfLbl}) {
    if (label->visible()) std::printf("%s\t%s\n", label->tooltip().c_str(), label->caption().c_str());
  }
  if (m.EUtxt.visible()) {
    std::printf("%s\t%s\n%s\n", m.EUtxt.tooltip().c_str(), m.EUtxt.text().c_str(),
                main.frame.EUlbl.caption().c_str());
  }
  for (const TextBox* box :
       {&m.POrecTxt, &m.UVcorecTxt, &m.UVrerecTxt, &m.OVrerecTxt, &m.OVcorecTxt, &m.SGrecTxt, &m.OLrecTxt}) {
    if (box->visible()) std::printf("%s\t%s\n", box->tooltip().c_str(), box->text().c_str());
  }
}

}  // namespace

int runUnattended(Main& main, const std::string& /*commandLine*/) {
  if (!connectSub(main)) return main.link.openFailed ? kCantOpen : kNoAnswer;
  const bool measured = measure(main);
  if (measured) printReadings(main);
  disconnectSub(main);
  return measured ? 0 : kNoAnswer;
}

}  // namespace zephon
