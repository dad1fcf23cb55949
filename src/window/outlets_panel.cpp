#include <QVBoxLayout>

#include "window/bindings.h"
#include "window/card.h"
#include "window/page.h"
#include "window/panels.h"
#include "window/tile_layout.h"
#include "window/words.h"

namespace zephon {
namespace {

constexpr int kTileWidth = 250;
constexpr int kTileHeight = 190;

void add(TileLayout& tiles, Button& element, const QString& heading, StateButton::Look look, Zone lit,
         QWidget* parent) {
  auto* card = new Card(heading, {&element}, parent);
  card->setMaximumHeight(kTileHeight);
  StateButton* button =
      draw(element, look == StateButton::Look::Indicator ? words::kNoFault : heading, card, look);
  button->setLamp(lit);
  card->column()->addWidget(button, 1);
  tiles.addWidget(card);
}

}  // namespace

QWidget* outletsPanel(Main& main, QWidget* parent) {
  const ScrolledPage made = scrolledPage(words::kOutlets, parent);
  auto* tiles = new TileLayout(kTileWidth, 3, kPageGap);
  tiles->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kPageMargin);
  made.content->setLayout(tiles);
  OutletElements& page = main.outlets;
  add(*tiles, page.oOnBtn, words::kSwitch, StateButton::Look::Large, Zone::Good, made.content);
  add(*tiles, page.oCycBtn, words::kCycle, StateButton::Look::Large, Zone::Caution, made.content);
  add(*tiles, page.oFltBtn, words::kFault, StateButton::Look::Indicator, Zone::Alarm, made.content);
  return made.page;
}

}  // namespace zephon
