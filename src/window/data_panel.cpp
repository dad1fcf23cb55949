#include <QHBoxLayout>
#include <QProgressBar>
#include <QVBoxLayout>

#include "window/bindings.h"
#include "window/card.h"
#include "window/findings_list.h"
#include "window/graph_view.h"
#include "window/page.h"
#include "window/panels.h"
#include "window/tree_view.h"
#include "window/words.h"

namespace zephon {
namespace {

// Two lines of caption have room, as the longest names of logs need beside their neighbour.
StateButton* drawLog(Button& log, const Word& legend, QWidget* parent) {
  StateButton* button = draw(log, legend, parent);
  button->setMinimumHeight(2 * button->fontMetrics().lineSpacing() + 12);
  return button;
}

void addLog(Card& card, Button& log, const Word& legend, Button& clear, const Word& clearLegend) {
  auto* row = new QHBoxLayout;
  row->setSpacing(6);
  row->addWidget(drawLog(log, legend, &card), 1);
  row->addWidget(draw(clear, clearLegend, &card));
  card.column()->addLayout(row);
}

QWidget* logsCard(DataElements& page, QWidget* parent) {
  auto* card = new Card(words::kLogs, {&page.tsDataBtn, &page.histDataBtn, &page.cmDataBtn}, parent);
  addLog(*card, page.tsDataBtn, words::kEventLog, page.clrTsDataBtn, words::kClear);
  addLog(*card, page.histDataBtn, words::kHistory, page.clrHistDataBtn, words::kClear);
  card->column()->addWidget(drawLog(page.cmDataBtn, words::kInternalChart, card));
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

// Says why there is nothing to see on the page.
QWidget* hint(Main& main, QWidget* parent) {
  auto* text = new QuietLabel(QString(), parent);
  text->setAlignment(Qt::AlignCenter);
  text->setWordWrap(true);
  const auto show = [&main, text] {
    const bool tree = main.data.TreeView1.visible();
    const bool graph = main.frame.CWGraph2.visible() && !main.frame.CWGraph2.plots().empty();
    const QString files =
        main.link.connected ? QLatin1Char('\n') + say(words::kFilesWithoutDevice) : QString();
    text->setText(tree ? say(words::kEmptyLog) : say(words::kNoLog) + files);
    text->setVisible(tree ? main.data.TreeView1.empty() : !graph);
  };
  watchWhile(*text, main.data.TreeView1, show);
  watchWhile(*text, main.frame.CWGraph2, show);
  whileSpoken(*text, show);
  return text;
}

// There while the tree has something to show.
QWidget* tree(Tree& element, QWidget* parent) {
  auto* place = new QWidget(parent);
  auto* column = new QVBoxLayout(place);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(drawTree(element, place));
  const auto show = [place, &element] { place->setVisible(element.visible() && !element.empty()); };
  watchWhile(*place, element, show);
  show();
  return place;
}

}  // namespace

QWidget* dataPanel(Main& main, QWidget* parent) {
  const GraphPage made = graphPage(words::kData, parent);
  auto* ground = made.ground->column();
  ground->addWidget(tree(main.data.TreeView1, made.ground), 1);
  ground->addWidget(graphPlace(main.frame.CWGraph2, made.ground), 1);
  ground->addWidget(hint(main, made.ground), 1);
  ground->addWidget(findingsPlace(main.frame.findingsList, made.ground));
  made.column->addWidget(logsCard(main.data, made.controls));
  made.column->addWidget(historyCard(main.data, made.controls));
  return made.page;
}

}  // namespace zephon
