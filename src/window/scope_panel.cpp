#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "window/bindings.h"
#include "window/card.h"
#include "window/graph_view.h"
#include "window/page.h"
#include "window/panels.h"
#include "window/words.h"

namespace zephon {
namespace {

struct Step {
  Button& button;
  const Word& does;
  Glyph glyph;
};

// The left one is made first, so that the keyboard comes to it first.
void addPair(Card& card, const Step& left, const Step& right) {
  auto* row = new QHBoxLayout;
  row->setSpacing(6);
  for (const Step& step : {left, right}) {
    StateButton* drawn = draw(step.button, step.does, &card, StateButton::Look::Plain, step.glyph);
    describeBy(*drawn, step.does);  // both have the scale for a caption
    row->addWidget(drawn, 1);
  }
  card.column()->addLayout(row);
}

void addChannel(Card& card, Button& toggle, const Word& legend, Button& up, Button& down) {
  card.column()->addWidget(draw(toggle, legend, &card));
  addPair(card, {up, words::kMorePerDivision, Glyph::Up}, {down, words::kLessPerDivision, Glyph::Down});
}

QWidget* channelsCard(ScopeElements& page, QWidget* parent) {
  auto* card = new Card(words::kChannels, {&page.CH1togBtn}, parent);
  card->column()->setSpacing(6);
  addChannel(*card, page.CH1togBtn, words::kChannel1, page.p1upBtn, page.p1downBtn);
  addChannel(*card, page.CH2togBtn, words::kChannel2, page.p2upBtn, page.p2downBtn);
  addChannel(*card, page.CH3togBtn, words::kChannel3, page.p3upBtn, page.p3downBtn);
  return card;
}

QWidget* timeCard(ScopeElements& page, QWidget* parent) {
  auto* card = new Card(words::kSpan, {&page.XinBtn, &page.XoutBtn, &page.xTimeLbl}, parent);
  QLabel* scale = draw(page.xTimeLbl, card);
  describeBy(*scale, words::kSpan);
  card->column()->addWidget(scale);
  addPair(*card, {page.XinBtn, words::kZoomIn, Glyph::ZoomIn},
          {page.XoutBtn, words::kZoomOut, Glyph::ZoomOut});
  return card;
}

// Both buttons have the same caption; what each watches stands before it.
void addOneShot(Card& card, Button& button, const Word& watched) {
  auto* row = new QHBoxLayout;
  auto* quantity = new QuietLabel(watched, &card);
  showWhileAny(*quantity, {&button});
  row->addWidget(quantity, 2);
  StateButton* drawn = draw(button, words::kOneShot, &card);
  describeBy(*drawn, watched);
  row->addWidget(drawn, 3);
  card.column()->addLayout(row);
}

QWidget* triggerCard(ScopeElements& page, QWidget* parent) {
  auto* card = new Card(words::kTrigger, {&page.oneShotVbtn, &page.oneShotAbtn, &page.holdBtn}, parent);
  addOneShot(*card, page.oneShotVbtn, words::kVoltage);
  addOneShot(*card, page.oneShotAbtn, words::kCurrent);
  card->column()->addWidget(draw(page.holdBtn, words::kHold, card));
  return card;
}

}  // namespace

QWidget* scopePanel(Main& main, QWidget* parent) {
  const GraphPage made = graphPage(words::kScope, parent);
  made.ground->column()->addWidget(graphPlace(main.frame.CWGraph2, made.ground), 1);
  made.column->addWidget(channelsCard(main.scope, made.controls));
  made.column->addWidget(timeCard(main.scope, made.controls));
  made.column->addWidget(triggerCard(main.scope, made.controls));
  return made.page;
}

}  // namespace zephon
