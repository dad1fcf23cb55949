#include <QVBoxLayout>

#include "window/bindings.h"
#include "window/card.h"
#include "window/page.h"
#include "window/panels.h"
#include "window/tile_layout.h"
#include "window/words.h"

namespace zephon {
namespace {

constexpr int kTileWidth = 176;
constexpr int kTileHeight = 150;

void add(TileLayout& tiles, Button& element, const Word& heading, StateButton::Look look, Zone lit,
         QWidget* parent) {
  auto* card = new Card(heading, {&element}, parent);
  card->setMinimumHeight(kTileHeight);
  StateButton* button =
      draw(element, look == StateButton::Look::Indicator ? words::kNoFault : heading, card, look);
  button->setLamp(lit);
  card->column()->addWidget(button, 1);
  tiles.addWidget(card);
}

}  // namespace

QWidget* outletsPanel(Main& main, QWidget* parent) {
  const ScrolledPage made = scrolledPage(words::kOutlets, parent);
  auto* column = new QVBoxLayout(made.content);
  column->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kPageMargin);
  auto* tiles = new TileLayout(kTileWidth, 3, kPageGap);
  column->addLayout(tiles);
  column->addStretch(1);
  OutletElements& page = main.outlets;
  add(*tiles, page.oOnBtn, words::kSwitch, StateButton::Look::Large, Zone::Good, made.content);
  add(*tiles, page.oCycBtn, words::kCycle, StateButton::Look::Large, Zone::Caution, made.content);
  add(*tiles, page.oFltBtn, words::kFault, StateButton::Look::Indicator, Zone::Alarm, made.content);
  return made.page;
}

}  // namespace zephon
