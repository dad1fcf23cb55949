#include "window/status_line.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "window/accessible.h"
#include "window/bindings.h"
#include "window/colours.h"
#include "window/glyph.h"
#include "window/words.h"

namespace zephon {
namespace {

// A drawing in the text's size.
class Mark : public QWidget {
 public:
  Mark(Glyph glyph, const Word& meaning, QWidget* parent) : QWidget(parent), glyph_(glyph) {
    giveRole(*this, QAccessible::Graphic);
    nameBy(*this, meaning);
    const int side = fontMetrics().height() + 1;
    setFixedSize(side, side);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    drawGlyph(painter, rect(), glyph_, palette().color(QPalette::Active, QPalette::WindowText));
  }

 private:
  Glyph glyph_;
};

// Selectable, so that a failure can be copied into a letter to support.
void addLine(QVBoxLayout& lines, Label& element, Glyph glyph, const Word& meaning, QWidget* parent) {
  auto* line = new QWidget(parent);
  auto* row = new QHBoxLayout(line);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(8);
  row->addWidget(new Mark(glyph, meaning, line), 0, Qt::AlignTop);
  QLabel* text = draw(element, line);
  text->setWordWrap(true);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  describeBy(*text, meaning);
  row->addWidget(text, 1);
  lines.addWidget(line);
  const auto show = [line, &element] { line->setVisible(element.visible() && !element.caption().empty()); };
  watchWhile(*line, element, show);
  show();
}

}  // namespace

StatusLine::StatusLine(FrameElements& frame, QWidget* parent) : QWidget(parent) {
  giveRole(*this, QAccessible::StatusBar);
  nameBy(*this, words::kLinkState);
  auto* lines = new QVBoxLayout(this);
  lines->setContentsMargins(12, 6, 12, 5);
  lines->setSpacing(3);
  addLine(*lines, frame.linkLbl, Glyph::Port, words::kLinkState, this);
  addLine(*lines, frame.adviceLbl, Glyph::Advice, words::kAdvice, this);
  addLine(*lines, frame.noticeLbl, Glyph::Save, words::kNotice, this);
}

void StatusLine::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(QRect(0, 0, width(), 1), tone(Tone::Line, palette()));
}

}  // namespace zephon
