#include "display/data_page.h"

#include <functional>

#include "display/chart_plot.h"
#include "display/opening.h"
#include "logs/chart_download.h"
#include "logs/event_download.h"
#include "logs/history_download.h"
#include "logs/log_controls.h"
#include "logs/shown_log.h"
#include "protocol/asking.h"
#include "protocol/counters.h"
#include "protocol/dict_text.h"
#include "protocol/options.h"
#include "protocol/stay.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyOpen = 132;

struct Log {
  const LogControls& controls;
  bool (*download)(Main&);
  const LogFile& file;
  std::size_t nameKey;   // what the question before clearing calls it
  bool (*clear)(Main&);  // on the device; the chart memory can't be
};
constexpr Log kLogs[] = {{kEventControls, getTSdata, kEventFile, 145, setClrTSdata},
                         {kHistoryControls, getHistData, kHistoryFile, 147, setClrHistData},
                         {kChartControls, getCMdata, kChartFile, 155, nullptr}};

std::string captionToOpen(const Main& main, const LogControls& controls) {
  return dictText(main, kKeyOpen) + ' ' + dictText(main, controls.captionKey);
}

void enableLogButtons(Main& main, bool on) {
  DataElements& d = main.data;
  for (Button* button : {&d.tsDataBtn, &d.histDataBtn, &d.cmDataBtn}) button->setEnabled(on);
  for (Button* button : {&d.clrTsDataBtn, &d.clrHistDataBtn}) button->setEnabled(on && main.link.connected);
}

// A log in the place of the one that stood there. A question that is cancelled changes nothing.
void openLog(Main& main, const Log& log) {
  const Stay stay(main);
  const auto path = askForLogFile(main, log.file);
  if (!path || !stay.stands()) return;
  enableLogButtons(main, false);
  log.file.open(main, *path);
  if (stay.stands()) enableLogButtons(main, true);
}

// A chart memory was read that holds nothing: the empty page does not say so by itself.
bool isEmptyMemory(const Logs& logs) {
  return logs.shown == ShownLog::None && !logs.rawLogBuffer.empty();
}

void downloadLog(Main& main, const PageExits& exits, const Log& log) {
  const Stay stay(main);
  enableLogButtons(main, false);
  hideShownLog(main);
  const bool good = log.download(main);
  if (!stay.stands()) return;
  main.pages.dataPageActive = true;  // a transfer that was cancelled leaves the page standing
  if (good || !(main.data.*log.controls.button).value()) {
    main.exchange.shortfall.clear();
    if (main.logs.shown == ShownLog::Chart) plotChart(main);
    enableLogButtons(main, true);
    if (isEmptyMemory(main.logs)) main.around.dialogs.message(dictText(main, words::kEmptyLog));
    return;
  }
  main.pages.dataPageActive = false;
  exits.linkLost();
}

// The button is on for as long as its log is on its way, and can be pressed again afterwards.
void wireLog(Main& main, const PageExits& exits, const Log& log) {
  Button& button = main.data.*log.controls.button;
  button.onChange = [&main, exits, &log, &button](bool pressed) {
    if (!pressed) return;
    const Stay stay(main);
    if (main.pages.dataPageActive) {
      const bool opens = button.caption() == captionToOpen(main, log.controls);
      opens ? openLog(main, log) : downloadLog(main, exits, log);
    }
    if (stay.stands()) button.setValue(false);
  };
}

// The question names the log: what is cleared is gone from the device. A transfer that was cancelled may
// still be coming in.
void wireClear(Main& main, const PageExits& exits, const Log& log) {
  (main.data.*log.controls.clear).onChange = [&main, exits, &log](bool pressed) {
    if (!pressed || !main.pages.dataPageActive) return;
    const Stay stay(main);
    if (!askToClear(main, dictText(main, log.nameKey))) return;
    if (!stay.stands() || !main.pages.dataPageActive) return;
    enableLogButtons(main, false);
    const bool good = settleLine(main) && log.clear(main);
    if (!stay.stands()) return;
    if (!good) return exits.linkLost();
    enableLogButtons(main, true);
    main.frame.saveBtn.setVisible(false);
    main.frame.expertBtn.setVisible(false);
  };
}

}  // namespace

void wireDataPage(Main& main, const PageExits& exits) {
  for (const Log& log : kLogs) {
    wireLog(main, exits, log);
    if (log.clear) wireClear(main, exits, log);
  }
  main.data.cancelDataBtn.onChange = [&main](bool pressed) {
    if (pressed) main.pages.dataPageActive = false;
  };
}

// Files of either line can be opened without a device.
void layDataPage(Main& main, bool chartMemory) {
  DataElements& d = main.data;
  const bool files = !main.link.connected;
  for (const Log& log : kLogs) {
    const std::string own = dictText(main, log.controls.captionKey);
    (d.*log.controls.button).setTexts(files ? captionToOpen(main, log.controls) : own);
  }
  const bool firstLine = main.link.modelLine == 0;
  d.tsDataBtn.setVisible(true);
  d.clrTsDataBtn.setVisible(true);
  d.histDataBtn.setVisible(files || firstLine);
  d.clrHistDataBtn.setVisible(firstLine);
  d.cmDataBtn.setVisible(files || chartMemory);
  main.frame.CWGraph2.setVisible(true);
  enableLogButtons(main, true);
  showLogAgain(main);
}

bool readDataPage(Main& main) {
  if (!main.link.connected || !main.data.cmDataBtn.visible()) return true;
  const Stay stay(main);
  enableLogButtons(main, false);
  const bool good = getInternalChartState(main);
  if (stay.stands()) enableLogButtons(main, true);
  return good;
}

void clearDataPage(Main& main) {
  DataElements& d = main.data;
  hideShownLog(main);
  for (Button* button : {&d.tsDataBtn, &d.histDataBtn, &d.cmDataBtn}) button->setValue(false);
  for (Element* element : {static_cast<Element*>(&d.tsDataBtn), static_cast<Element*>(&d.clrTsDataBtn),
                           static_cast<Element*>(&d.histDataBtn), static_cast<Element*>(&d.clrHistDataBtn),
                           static_cast<Element*>(&d.cmDataBtn), static_cast<Element*>(&d.cancelDataBtn),
                           static_cast<Element*>(&d.dataProgSlide)}) {
    element->setVisible(false);
  }
}

}  // namespace zephon
