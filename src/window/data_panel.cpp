#include <QHBoxLayout>
#include <QProgressBar>
#include <QVBoxLayout>

#include "window/bindings.h"
#include "window/card.h"
#include "window/page.h"
#include "window/panels.h"
#include "window/words.h"

namespace zephon {
namespace {

void addLog(Card& card, Button& log, const QString& legend, Button& clear, const QString& clearLegend) {
  auto* row = new QHBoxLayout;
  row->setSpacing(6);
  row->addWidget(draw(log, legend, &card), 1);
  row->addWidget(draw(clear, clearLegend, &card));
  card.column()->addLayout(row);
}

QWidget* logsCard(DataElements& page, QWidget* parent) {
  auto* card = new Card(words::kLogs, {&page.tsDataBtn, &page.histDataBtn, &page.cmDataBtn}, parent);
  addLog(*card, page.tsDataBtn, words::kEventLog, page.clrTsDataBtn, words::kClear);
  addLog(*card, page.histDataBtn, words::kHistory, page.clrHistDataBtn, words::kClear);
  card->column()->addWidget(draw(page.cmDataBtn, words::kInternalChart, card));
  auto* running = new QHBoxLayout;
  running->setSpacing(6);
  running->addWidget(drawProgress(page.dataProgSlide, words::kProgress, card), 1);
  running->addWidget(draw(page.cancelDataBtn, words::kCancel, card));
  card->column()->addLayout(running);
  return card;
}

QWidget* historyCard(DataElements& page, QWidget* parent) {
  auto* card = new Card(words::kHistory, {&page.PavgHistBtn, &page.VavgHistBtn, &page.maxMinHistBtn}, parent);
  card->column()->addWidget(draw(page.PavgHistBtn, words::kAveragePower, card));
  card->column()->addWidget(draw(page.VavgHistBtn, words::kAverageVoltage, card));
  card->column()->addWidget(draw(page.maxMinHistBtn, words::kMaxMin, card));
  auto* volts = new QHBoxLayout;
  volts->addWidget(draw(page.vMaxBtn, words::kMaxVolts, card));
  volts->addWidget(draw(page.vMinBtn, words::kMinVolts, card));
  card->column()->addLayout(volts);
  auto* load = new QHBoxLayout;
  load->addWidget(draw(page.iMaxBtn, words::kMaxAmps, card));
  load->addWidget(draw(page.pMaxBtn, words::kMaxWatts, card));
  card->column()->addLayout(load);
  return card;
}

}  // namespace

QWidget* dataPanel(Main& main, QWidget* parent) {
  const GraphPage made = graphPage(words::kData, parent);
  made.column->addWidget(logsCard(main.data, made.controls));
  made.column->addWidget(historyCard(main.data, made.controls));
  return made.page;
}

}  // namespace zephon
