#include "window/page.h"

#include <QHBoxLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "window/accessible.h"
#include "window/card.h"
#include "window/words.h"

namespace zephon {
namespace {

constexpr int kControlsWidth = 268;

QScrollArea* scrollArea(const Word& name, QWidget* parent) {
  auto* area = new QScrollArea(parent);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setFocusPolicy(Qt::NoFocus);  // its controls scroll it when they take the focus
  nameBy(*area, name);
  area->setWidget(new QWidget(area));
  giveRole(*area->widget(), QAccessible::Pane);
  nameBy(*area->widget(), name);
  return area;
}

}  // namespace

ScrolledPage scrolledPage(const Word& name, QWidget* parent) {
  QScrollArea* area = scrollArea(name, parent);
  return {area, area->widget()};
}

GraphPage graphPage(const Word& name, QWidget* parent) {
  GraphPage made;
  made.page = new QWidget(parent);
  giveRole(*made.page, QAccessible::Pane);
  nameBy(*made.page, name);
  auto* row = new QHBoxLayout(made.page);
  row->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kPageMargin);
  row->setSpacing(kPageGap);
  made.ground = new Card(QString(), {}, made.page);
  nameBy(*made.ground, name);
  made.ground->setMinimumSize(160, 120);
  row->addWidget(made.ground, 1);

  QScrollArea* side = scrollArea(name, made.page);
  side->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  side->setFixedWidth(kControlsWidth);
  made.controls = side->widget();
  auto* whole = new QVBoxLayout(made.controls);
  whole->setContentsMargins(0, 0, 2, 0);
  made.column = new QVBoxLayout;
  made.column->setSpacing(kPageGap);
  whole->addLayout(made.column);
  whole->addStretch(1);
  row->addWidget(side);
  return made;
}

}  // namespace zephon
