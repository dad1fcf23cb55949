#include "window/page_rail.h"

#include <QKeySequence>
#include <QPainter>
#include <QVBoxLayout>

#include "form/shortcuts.h"
#include "window/accessible.h"
#include "window/bindings.h"
#include "window/colours.h"
#include "window/words.h"

namespace zephon {
namespace {

struct Entry {
  Button* button;
  Shortcut shortcut;
  Glyph glyph;
};

void add(QVBoxLayout& column, const Entry& entry, QWidget* parent) {
  const QKeySequence key(entry.shortcut.key);
  StateButton* button =
      draw(*entry.button, entry.shortcut.does, parent, StateButton::Look::Rail, entry.glyph);
  button->setMaximumHeight(70);
  button->setShortcut(key);
  whileSpoken(*button, [button, key, &element = *entry.button] {
    setTooltip(*button, element, key.toString(QKeySequence::NativeText));
  });
  column.addWidget(button, 1);
}

}  // namespace

PageRail::PageRail(FrameElements& frame, QWidget* parent) : QWidget(parent) {
  giveRole(*this, QAccessible::ToolBar);
  nameBy(*this, words::kPages);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(4, 4, 5, 4);
  column->setSpacing(2);
  const Entry pages[] = {
      {&frame.measBtn, shortcuts::kMeasure, Glyph::Measure},
      {&frame.ScopeBtn, shortcuts::kScope, Glyph::Scope},
      {&frame.ChartBtn, shortcuts::kChart, Glyph::Chart},
      {&frame.outletsBtn, shortcuts::kOutlets, Glyph::Outlets},
      {&frame.dataBtn, shortcuts::kData, Glyph::Data},
      {&frame.setupBtn, shortcuts::kSetup, Glyph::Setup},
      {&frame.comBtn, shortcuts::kPort, Glyph::Port},
  };
  for (const Entry& entry : pages) add(*column, entry, this);
  column->addStretch(1);
  const Entry others[] = {
      {&frame.expertBtn, shortcuts::kExpert, Glyph::Expert},
      {&frame.saveBtn, shortcuts::kSave, Glyph::Save},
      {&frame.helpBtn, shortcuts::kHelp, Glyph::Help},
  };
  for (const Entry& entry : others) add(*column, entry, this);
}

void PageRail::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(QRect(width() - 1, 0, 1, height()), tone(Tone::Line, palette()));
}

}  // namespace zephon
