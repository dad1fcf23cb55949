#include "window/card.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

#include "screen/element.h"
#include "window/accessible.h"
#include "window/bindings.h"
#include "window/colours.h"

namespace zephon {

void paintCard(QPainter& painter, const QRectF& box, const QPalette& palette, bool focused) {
  constexpr double kRadius = 6;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(tone(Tone::Card, palette));
  const QColor edge = tone(focused ? Tone::Focus : Tone::Line, palette);
  painter.setPen(QPen(edge, focused ? 2 : 1));
  const double inset = focused ? 1 : 0.5;
  painter.drawRoundedRect(box.adjusted(inset, inset, -inset, -inset), kRadius, kRadius);
  painter.restore();
}

void showWhileAny(QWidget& widget, std::initializer_list<Element*> elements) {
  const std::vector<Element*> members(elements);
  const auto show = [&widget, members] {
    widget.setVisible(
        std::any_of(members.begin(), members.end(), [](const Element* member) { return member->visible(); }));
  };
  for (Element* member : members) watchWhile(widget, *member, show);
  show();
}

QuietLabel::QuietLabel(const Legend& text, QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  followLegend(*this, text, [this, text] { setText(text.now()); });
  fade();
}

void QuietLabel::fade() {
  QPalette faded;
  faded.setColor(QPalette::WindowText, tone(Tone::Muted, QApplication::palette()));
  setPalette(faded);
}

void QuietLabel::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) fade();
  QLabel::changeEvent(event);
}

Card::Card(const Legend& heading, std::initializer_list<Element*> members, QWidget* parent) : QFrame(parent) {
  giveRole(*this, QAccessible::Grouping);
  column_ = new QVBoxLayout(this);
  column_->setContentsMargins(14, 10, 14, 12);
  column_->setSpacing(8);
  if (!heading.now().isEmpty()) addHeading(heading);
  if (members.size() > 0) showWhileAny(*this, members);
}

void Card::addHeading(const Legend& heading) {
  auto* title = new QLabel(this);
  QFont bold = title->font();
  bold.setBold(true);
  title->setFont(bold);
  column_->addWidget(title);
  followLegend(*this, heading, [this, title, heading] {
    title->setText(heading.now());
    setAccessibleName(heading.now());
  });
}

void Card::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  paintCard(painter, rect(), palette(), false);
}

}  // namespace zephon
