#include "logs/shown_log.h"

#include <memory>

#include "logs/event_tree.h"
#include "logs/history_tree.h"

namespace zephon {
namespace {

constexpr std::size_t kFirstLegendPointer = 2;  // of recSlide: outages

LegendColours legendOf(const Slider& record) {
  LegendColours colours;
  for (std::size_t i = 0; i < colours.size(); ++i) {
    colours[i] = record.pointer(kFirstLegendPointer + i).colour;
  }
  return colours;
}

void showTree(Main& main, ShownLog log, std::shared_ptr<const TreeSource> source) {
  main.logs.shown = log;
  main.logs.chipID = main.link.chipID;
  main.logs.modelLine = main.link.modelLine;
  main.frame.CWGraph2.setVisible(false);
  main.data.TreeView1.setSource(std::move(source));
  main.data.TreeView1.setVisible(true);
  main.frame.saveBtn.setVisible(true);
}

}  // namespace

void hideShownLog(Main& main) {
  DataElements& d = main.data;
  main.logs.shown = ShownLog::None;  // first: the views' buttons do nothing without a log
  d.TreeView1.clear();
  d.TreeView1.setVisible(false);
  main.frame.CWGraph2.setUp({}, {}, {});
  main.frame.CWGraph2.setVisible(false);
  for (Button* view :
       {&d.PavgHistBtn, &d.VavgHistBtn, &d.maxMinHistBtn, &d.vMaxBtn, &d.vMinBtn, &d.iMaxBtn, &d.pMaxBtn}) {
    view->setValue(false);
    view->setVisible(false);
  }
  main.frame.saveBtn.setVisible(false);
  main.frame.expertBtn.setVisible(false);
  hideFindings(main);
}

void hideFindings(Main& main) {
  main.frame.findingsList.setItems({});
  main.frame.findingsList.setVisible(false);
  main.data.TreeView1.select({});
  main.frame.CWGraph2.setMarks({});
}

void forgetLogs(Main& main) {
  hideShownLog(main);
  main.data.TreeView1.setTooltip({});  // the note on the second line's events goes with them
  main.logs.tsData = {};
  main.logs.histData = {};
  main.logs.rawLogBuffer = {};
}

void showLogAgain(Main& main) {
  if (main.logs.chipID != main.link.chipID) return;
  if (!main.link.connected)
    main.link.modelLine = main.logs.modelLine;  // a dead line was tried as the other one
  if (!main.logs.histData.empty()) return showHistory(main);
  if (!main.logs.tsData.empty()) showEvents(main);
}

void showEvents(Main& main) {
  const LegendColours legend = legendOf(main.measurement.recSlide);
  showTree(main, ShownLog::Events, std::make_shared<EventTree>(main.logs.tsData, legend, main.dict));
  main.frame.expertBtn.setVisible(true);
}

void showHistory(Main& main) {
  showTree(main, ShownLog::History, std::make_shared<HistoryTree>(main.logs.histData, main.dict));
  if (main.logs.histData.empty()) return;
  for (Button* view : {&main.data.PavgHistBtn, &main.data.VavgHistBtn, &main.data.maxMinHistBtn}) {
    view->setVisible(true);
  }
  main.frame.expertBtn.setVisible(true);
}

}  // namespace zephon
