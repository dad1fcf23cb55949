#include "shell/page_buttons.h"

#include <string>

#include "comm/mod_comm.h"
#include "display/chart_page.h"
#include "display/data_page.h"
#include "display/outlets_page.h"
#include "display/scope_page.h"
#include "display/setup_page.h"
#include "protocol/exchange.h"
#include "protocol/thresholds.h"
#include "protocol/visit.h"
#include "shell/com_page.h"
#include "shell/connection.h"
#include "shell/page_layout.h"

namespace zephon {
namespace {

using Step = bool (*)(Main&, const PageVisit&);

// One page: its button, its flag, and what is its own in being opened and left.
struct PageRow {
  Page page;
  Button FrameElements::*button;
  bool Pages::*flag;
  void (*hide)(Main&);
  double windDownMs;  // what the other pages get before this one touches the line
  bool needsDevice;   // without one the page doesn't open
  Step beforeLayout;  // on the line, before the page is shown
  Step firstReads;    // once it is shown
};

bool nothing(Main& /*main*/, const PageVisit& /*visit*/) {
  return true;
}

constexpr double kPollIntervalMs = 200;
constexpr std::int16_t kPlausibleVolts = 20;

void drain(Main& main, std::int32_t size) {
  CommRead(portOf(main), main.link.commPort, main.exchange.replyBuffer, size);
}

// A device that is still busy with a long answer gives limits out of nothing: once more then.
bool readLimits(Main& main, const PageVisit& visit) {
  if (!getThresholds(main)) return false;
  if (main.limits.OVco >= kPlausibleVolts) return true;
  wait(main, 20);
  if (!stands(main, visit)) return false;
  drain(main, 4096);
  return getThresholds(main);
}

bool startPolling(Main& main, const PageVisit& /*visit*/) {
  main.measurement.clrCountBtn.setEnabled(true);
  main.measurement.clrEUbtn.setEnabled(true);
  main.readings.pollPhase = 0;
  main.timers.measurementTimer.setInterval(kPollIntervalMs);
  main.timers.measurementTimer.setEnabled(true);
  return true;
}

bool readSetup(Main& main, const PageVisit& /*visit*/) {
  if (!readSetupPage(main)) return false;
  main.frame.saveBtn.setVisible(true);  // what has been read can be saved as a report
  return true;
}

bool readData(Main& main, const PageVisit& /*visit*/) {
  return readDataPage(main);
}

bool startOutlets(Main& main, const PageVisit& /*visit*/) {
  startOutletsPage(main);
  return true;
}

bool startScope(Main& main, const PageVisit& /*visit*/) {
  return startScopePage(main);
}

bool startChart(Main& main, const PageVisit& /*visit*/) {
  startChartPage(main);
  return true;
}

const PageRow kPages[] = {
    {Page::Measurement, &FrameElements::measBtn, &Pages::measuring, hideMeasurementPage, 200, true,
     readLimits, startPolling},
    {Page::Scope, &FrameElements::ScopeBtn, &Pages::scopeOn, hideScopePage, 100, true, nothing, startScope},
    {Page::Chart, &FrameElements::ChartBtn, &Pages::chartOn, hideChartPage, 100, true, nothing, startChart},
    {Page::Outlets, &FrameElements::outletsBtn, &Pages::outletsOn, hideOutletsPage, 100, true, nothing,
     startOutlets},
    {Page::Data, &FrameElements::dataBtn, &Pages::dataOn, hideDataPage, 100, false, nothing, readData},
    {Page::Setup, &FrameElements::setupBtn, &Pages::setupOn, hideSetupPage, 100, true, nothing, readSetup},
};

void clearFlags(Pages& pages) {
  for (bool Pages::*flag : {&Pages::scopeOn, &Pages::chartOn, &Pages::setupOn, &Pages::measuring,
                            &Pages::outletsOn, &Pages::dataOn, &Pages::comOn, &Pages::dataPageActive}) {
    pages.*flag = false;
  }
}

void othersOff(Main& main, const PageRow& row) {
  for (const PageRow& other : kPages) {
    if (&other != &row) (main.frame.*other.button).setValue(false);
  }
  main.frame.comBtn.setValue(false);
}

bool anyPageOn(const Main& main) {
  for (const PageRow& row : kPages) {
    if ((main.frame.*row.button).value()) return true;
  }
  return false;
}

// Whether the page can be opened now. One that works without a device leaves no port half open.
bool connected(Main& main, const PageRow& row, const PageVisit& visit) {
  if (main.link.connected && main.link.identified) return true;
  if (main.link.connected) disconnectSub(main);  // an attempt that this page cut short
  closeHalfOpen(main);
  const bool up = connectSub(main);
  if (!stands(main, visit)) return false;
  if (up || row.needsDevice) return up;
  disconnectSub(main);
  return true;
}

// The second line has no scope: the button goes off, and can't be pressed for as long as that is the line.
bool withoutScope(Main& main) {
  pageLayout(main);
  main.frame.ScopeBtn.setValue(false);
  return true;
}

bool openPage(Main& main, const PageRow& row, const PageVisit& visit) {
  othersOff(main, row);
  wait(main, row.windDownMs);
  if (!stands(main, visit)) return false;
  if (row.page == Page::Measurement && main.link.connected) drain(main, 8192);
  if (main.link.connected && !settleLine(main)) return false;
  if (!connected(main, row, visit)) return false;
  if (row.page == Page::Scope && main.link.modelLine == 1) return withoutScope(main);
  if (main.pages.scopeOn) {
    main.pages.scopeOn = false;
    wait(main, 10);
  }
  if (!row.beforeLayout(main, visit) || !stands(main, visit)) return false;
  clearFlags(main.pages);
  main.pages.*row.flag = true;
  main.pages.dataPageActive = row.page == Page::Data;
  pageLayout(main);
  return row.firstReads(main, visit);
}

void pageOn(Main& main, const PageRow& row) {
  const PageVisit visit = beginVisit(main, row.page);
  if (!openPage(main, row, visit) && stands(main, visit)) errorSub(main);
}

void pageOff(Main& main, const PageRow& row) {
  endVisit(main, row.page);
  if (row.page == Page::Measurement) {
    main.measurement.clrCountBtn.setEnabled(false);
    main.measurement.clrEUbtn.setEnabled(false);
    main.counters.clearCountsRequest = main.energy.clearEnergyRequest = false;
  }
  row.hide(main);
  showLeftChart(main);
  const PageVisit after = main.pages.wanted;
  wait(main, 10);
  if (stands(main, after) && !anyPageOn(main)) disconnectSub(main);
}

// The port's page needs no device, and there is none while it can be reached.
void comOn(Main& main) {
  const PageVisit visit = beginVisit(main, Page::Com);
  for (const PageRow& row : kPages) (main.frame.*row.button).setValue(false);
  if (!stands(main, visit)) return;
  clearFlags(main.pages);
  showComPage(main);
  main.pages.comOn = true;
  pageLayout(main);
}

void comOff(Main& main) {
  endVisit(main, Page::Com);
  leaveComPage(main);
  hideComPage(main);
  showLeftChart(main);
}

}  // namespace

void wirePageButtons(Main& main) {
  for (const PageRow& row : kPages) {
    (main.frame.*row.button).onChange = [&main, &row](bool on) {
      on ? pageOn(main, row) : pageOff(main, row);
    };
  }
  main.frame.comBtn.onChange = [&main](bool on) { on ? comOn(main) : comOff(main); };
}

}  // namespace zephon
