#include "window/page.h"

#include <QHBoxLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "window/card.h"

namespace zephon {
namespace {

constexpr int kControlsWidth = 268;

QScrollArea* scrollArea(const QString& name, QWidget* parent) {
  auto* area = new QScrollArea(parent);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setFocusPolicy(Qt::NoFocus);  // its controls scroll it when they take the focus
  area->setAccessibleName(name);
  area->setWidget(new QWidget(area));
  area->widget()->setAccessibleName(name);
  return area;
}

}  // namespace

ScrolledPage scrolledPage(const QString& name, QWidget* parent) {
  QScrollArea* area = scrollArea(name, parent);
  return {area, area->widget()};
}

GraphPage graphPage(const QString& name, QWidget* parent) {
  GraphPage made;
  made.page = new QWidget(parent);
  made.page->setAccessibleName(name);
  auto* row = new QHBoxLayout(made.page);
  row->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kPageMargin);
  row->setSpacing(kPageGap);
  made.ground = new Card(QString(), {}, made.page);
  made.ground->setAccessibleName(name);
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
