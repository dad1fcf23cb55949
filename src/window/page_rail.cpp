#include "window/page_rail.h"

#include <QKeySequence>
#include <QPainter>
#include <QVBoxLayout>

#include "window/bindings.h"
#include "window/colours.h"
#include "window/words.h"

namespace zephon {
namespace {

struct Entry {
  Button* button;
  const Word& word;
  Glyph glyph;
  QKeySequence shortcut;
};

void add(QVBoxLayout& column, const Entry& entry, QWidget* parent) {
  StateButton* button = draw(*entry.button, entry.word, parent, StateButton::Look::Rail, entry.glyph);
  button->setMaximumHeight(70);
  button->setShortcut(entry.shortcut);
  setTooltip(*button, *entry.button, entry.shortcut.toString(QKeySequence::NativeText));
  column.addWidget(button, 1);
}

}  // namespace

PageRail::PageRail(FrameElements& frame, QWidget* parent) : QWidget(parent) {
  nameBy(*this, words::kPages);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(4, 4, 5, 4);
  column->setSpacing(2);
  const Entry pages[] = {
      {&frame.measBtn, words::kMeasure, Glyph::Measure, Qt::CTRL | Qt::Key_1},
      {&frame.ScopeBtn, words::kScope, Glyph::Scope, Qt::CTRL | Qt::Key_2},
      {&frame.ChartBtn, words::kChart, Glyph::Chart, Qt::CTRL | Qt::Key_3},
      {&frame.outletsBtn, words::kOutlets, Glyph::Outlets, Qt::CTRL | Qt::Key_4},
      {&frame.dataBtn, words::kData, Glyph::Data, Qt::CTRL | Qt::Key_5},
      {&frame.setupBtn, words::kSetup, Glyph::Setup, Qt::CTRL | Qt::Key_6},
      {&frame.comBtn, words::kPort, Glyph::Port, Qt::CTRL | Qt::Key_7},
  };
  for (const Entry& entry : pages) add(*column, entry, this);
  column->addStretch(1);
  const Entry others[] = {
      {&frame.expertBtn, words::kExpert, Glyph::Expert, Qt::CTRL | Qt::Key_E},
      {&frame.saveBtn, words::kSave, Glyph::Save, Qt::CTRL | Qt::Key_S},
      {&frame.helpBtn, words::kHelp, Glyph::Help, Qt::Key_F1},
  };
  for (const Entry& entry : others) add(*column, entry, this);
}

void PageRail::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(QRect(width() - 1, 0, 1, height()), tone(Tone::Line, palette()));
}

}  // namespace zephon
