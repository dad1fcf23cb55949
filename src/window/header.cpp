#include "window/header.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

#include "window/bindings.h"
#include "window/colours.h"

namespace zephon {
namespace {

constexpr int kBadgeHeight = 26;
constexpr int kBannerHeight = 30;

}  // namespace

Header::Header(FrameElements& frame, QWidget* parent) : QWidget(parent) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(12, 3, 12, 4);
  row->setSpacing(12);
  QLabel* name = draw(frame.formCaption, this);
  name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  name->setMinimumHeight(kBadgeHeight);
  row->addWidget(name, 1);
  row->addWidget(draw(frame.adBanner, frame.formCaption, kBannerHeight, this));
  row->addWidget(draw(frame.image998, frame.modelLbl, kBadgeHeight, this));
  row->addWidget(draw(frame.image999, frame.modelLbl, kBadgeHeight, this));
  QLabel* model = draw(frame.modelLbl, this);
  QFont bold = model->font();
  bold.setBold(true);
  bold.setPointSizeF(bold.pointSizeF() * 1.2);
  model->setFont(bold);
  row->addWidget(model);
}

void Header::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(QRect(0, height() - 1, width(), 1), tone(Tone::Line, palette()));
}

}  // namespace zephon
