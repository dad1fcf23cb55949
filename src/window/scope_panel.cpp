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

void addPair(QVBoxLayout& column, QWidget* left, QWidget* right) {
  auto* row = new QHBoxLayout;
  row->setSpacing(6);
  row->addWidget(left, 1);
  row->addWidget(right, 1);
  column.addLayout(row);
}

void addChannel(Card& card, Button& toggle, const Word& legend, Button& up, Button& down) {
  constexpr auto kPlain = StateButton::Look::Plain;
  card.column()->addWidget(draw(toggle, legend, &card));
  addPair(*card.column(), draw(up, words::kMorePerDivision, &card, kPlain, Glyph::Up),
          draw(down, words::kLessPerDivision, &card, kPlain, Glyph::Down));
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
  constexpr auto kPlain = StateButton::Look::Plain;
  auto* card = new Card(words::kTime, {&page.XinBtn, &page.XoutBtn, &page.xTimeLbl}, parent);
  card->column()->addWidget(draw(page.xTimeLbl, card));
  addPair(*card->column(), draw(page.XinBtn, words::kZoomIn, card, kPlain, Glyph::ZoomIn),
          draw(page.XoutBtn, words::kZoomOut, card, kPlain, Glyph::ZoomOut));
  return card;
}

// Both buttons have the same caption; what each watches stands before it.
void addOneShot(Card& card, Button& button, const Word& watched) {
  auto* row = new QHBoxLayout;
  auto* quantity = new QuietLabel(watched, &card);
  showWhileAny(*quantity, {&button});
  row->addWidget(quantity, 2);
  StateButton* drawn = draw(button, words::kOneShot, &card);
  whileSpoken(*drawn, [drawn, watched] { drawn->setAccessibleDescription(say(watched)); });
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
