#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "window/bindings.h"
#include "window/card.h"
#include "window/fields.h"
#include "window/meter.h"
#include "window/page.h"
#include "window/panels.h"
#include "window/reading.h"
#include "window/record_bar.h"
#include "window/tile_layout.h"
#include "window/words.h"

namespace zephon {
namespace {

constexpr int kMeterWidth = 208;
constexpr int kLegendWidth = 250;
constexpr int kRateWidth = 80;
constexpr double kCountScale = 1.25;
constexpr int kMostColumns = 4;

// The points at which the conditioner records and shuts down, once they are known.
std::vector<double> limitMarks(const Limits& limits) {
  if (limits == Limits{}) return {};
  return {static_cast<double>(limits.UVco), static_cast<double>(limits.UVre),
          static_cast<double>(limits.OVre), static_cast<double>(limits.OVco)};
}

// A tile among the meters, but no meter: the device's total, and what it costs at the user's rate.
QWidget* energyTile(Main& main, QWidget* parent) {
  MeasurementElements& page = main.measurement;
  auto* tile = new Card(QString(), {&page.EUtxt}, parent);
  nameBy(*tile, words::kEnergy);
  QVBoxLayout* column = tile->column();
  column->setSpacing(4);
  column->addWidget(new QuietLabel(words::kEnergy, tile));
  column->addWidget(drawReading(page.EUtxt, words::kEnergy, QStringLiteral("kWh"), tile), 1);

  auto* since = new QHBoxLayout;
  QLabel* date = draw(main.frame.EUlbl, tile);
  date->setWordWrap(true);
  since->addWidget(date, 1);
  since->addWidget(draw(page.clrEUbtn, words::kReset, tile));
  column->addLayout(since);

  auto* cost = new QHBoxLayout;
  TextField* rate = draw(page.EnRateTxt, words::kRate, tile);
  rate->setMaximumWidth(kRateWidth);
  cost->addWidget(rate, 1);
  auto* perKWh = new QuietLabel(words::kPerKWh, tile);
  showWhileAny(*perKWh, {&page.EnRateTxt});
  cost->addWidget(perKWh);
  QLabel* amount = draw(page.EnCostLbl, tile);
  amount->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  describeBy(*amount, words::kEnergyCost);
  cost->addWidget(amount, 1);
  column->addLayout(cost);
  return tile;
}

QWidget* meters(Main& main, QWidget* parent) {
  MeasurementElements& page = main.measurement;
  auto* grid = new QWidget(parent);
  auto* tiles = new TileLayout(kMeterWidth, kMostColumns, kPageGap);
  grid->setLayout(tiles);
  const Marks limits = [&main] { return limitMarks(main.limits); };
  tiles->addWidget(drawMeter(page.VlnSlide, page.VlnLbl, words::kLineVoltage, grid, limits));
  tiles->addWidget(drawMeter(page.ISlide, page.Ilbl, words::kCurrent, grid));
  tiles->addWidget(drawMeter(page.PSlide, page.Plbl, words::kPower, grid));
  tiles->addWidget(drawMeter(page.VngSlide, page.VngLbl, words::kNeutralGround, grid));
  tiles->addWidget(drawMeter(page.fSlide, page.fLbl, words::kFrequency, grid));
  tiles->addWidget(drawMeter(page.pfSlide, page.pfLbl, words::kPowerFactor, grid));
  tiles->addWidget(drawMeter(page.cfSlide, page.cfLbl, words::kCrestFactor, grid));
  tiles->addWidget(energyTile(main, grid));
  return grid;
}

// One class of disturbance: its filling in the bar, its legend and its count.
QWidget* countCell(Slider& record, std::size_t pointer, Label& legend, TextBox& count, QWidget* parent) {
  auto* cell = new QWidget(parent);
  auto* row = new QHBoxLayout(cell);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(8);
  row->addWidget(drawSwatch(record, pointer, legend, cell));
  TextField* field = draw(count, legend, cell);
  field->showAsNumber(kCountScale);
  field->setAlignment(Qt::AlignRight);
  field->setFixedWidth(field->fontMetrics().horizontalAdvance(QStringLiteral("000000")));
  row->addWidget(field);
  QLabel* words = draw(legend, cell);
  words->setWordWrap(true);
  row->addWidget(words, 1);
  showWhileAny(*cell, {&legend, &count});
  return cell;
}

QWidget* record(MeasurementElements& page, QWidget* parent) {
  auto* card = new Card(words::kDisturbances, {&page.recSlide}, parent);
  struct Class {
    Label* legend;
    TextBox* count;
  };
  // In the order of the bar's pointers, from the first.
  const Class classes[] = {{&page.PDlbl7, &page.OLrecTxt},   {&page.PDlbl1, &page.POrecTxt},
                           {&page.PDlbl2, &page.UVcorecTxt}, {&page.PDlbl3, &page.UVrerecTxt},
                           {&page.PDlbl4, &page.OVrerecTxt}, {&page.PDlbl5, &page.OVcorecTxt},
                           {&page.PDlbl6, &page.SGrecTxt}};
  std::vector<Label*> names;
  for (const Class& each : classes) names.push_back(each.legend);
  auto* bar = new QHBoxLayout;
  bar->addWidget(drawRecord(page.recSlide, words::kShares, names, card), 1);
  bar->addWidget(draw(page.clrCountBtn, words::kClear, card));
  card->column()->addLayout(bar);
  auto* grid = new QWidget(card);
  auto* tiles = new TileLayout(kLegendWidth, kMostColumns, kPageGap);
  grid->setLayout(tiles);
  std::size_t pointer = 1;
  for (const Class& each : classes) {
    tiles->addWidget(countCell(page.recSlide, pointer++, *each.legend, *each.count, grid));
  }
  card->column()->addWidget(grid);
  return card;
}

}  // namespace

QWidget* measurementPanel(Main& main, QWidget* parent) {
  const ScrolledPage made = scrolledPage(words::kMeasure, parent);
  auto* column = new QVBoxLayout(made.content);
  column->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kPageMargin);
  column->setSpacing(kPageGap);
  column->addWidget(meters(main, made.content), 1);
  column->addWidget(record(main.measurement, made.content));
  return made.page;
}

}  // namespace zephon
