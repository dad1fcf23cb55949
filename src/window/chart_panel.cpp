#include <QLabel>
#include <QVBoxLayout>

#include "window/bindings.h"
#include "window/card.h"
#include "window/fields.h"
#include "window/findings_list.h"
#include "window/graph_view.h"
#include "window/page.h"
#include "window/panels.h"
#include "window/words.h"

namespace zephon {
namespace {

QWidget* plotsCard(ChartElements& page, QWidget* parent) {
  auto* card = new Card(words::kPlots, {&page.vlnChartBtn}, parent);
  card->column()->setSpacing(5);
  card->column()->addWidget(draw(page.vlnChartBtn, words::kLineVoltage, card));
  card->column()->addWidget(draw(page.aChartBtn, words::kCurrent, card));
  card->column()->addWidget(draw(page.pChartBtn, words::kPower, card));
  card->column()->addWidget(draw(page.vngChartBtn, words::kNeutralGround, card));
  card->column()->addWidget(draw(page.fChartBtn, words::kFrequency, card));
  card->column()->addWidget(draw(page.pfChartBtn, words::kPowerFactor, card));
  card->column()->addWidget(draw(page.cfChartBtn, words::kCrestFactor, card));
  card->column()->addWidget(draw(page.euChartBtn, words::kEnergy, card));
  return card;
}

// The slider's caption is its tooltip: "Chart Interval (1 x 1 sec)".
QWidget* intervalCard(Slider& interval, QWidget* parent) {
  auto* card = new Card(QString(), {&interval}, parent);
  auto* caption = new QLabel(card);
  caption->setWordWrap(true);
  const auto show = [caption, &interval] {
    caption->setText(interval.tooltip().empty() ? say(words::kInterval) : toQt(interval.tooltip()));
  };
  watchWhile(*caption, interval, show);
  show();
  nameBy(*card, words::kInterval);
  card->column()->addWidget(caption);
  card->column()->addWidget(drawSlide(interval, words::kInterval, card));
  return card;
}

}  // namespace

QWidget* chartPanel(Main& main, QWidget* parent) {
  const GraphPage made = graphPage(words::kChart, parent);
  made.ground->column()->addWidget(graphPlace(main.frame.CWGraph2, made.ground), 1);
  made.ground->column()->addWidget(findingsPlace(main.frame.findingsList, made.ground));
  made.column->addWidget(plotsCard(main.chart, made.controls));
  made.column->addWidget(intervalCard(main.chart.chartIntervalSlide, made.controls));
  return made.page;
}

}  // namespace zephon
