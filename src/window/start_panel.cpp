#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "window/page.h"
#include "window/panels.h"
#include "window/words.h"

namespace zephon {
namespace {

constexpr int kTextWidth = 600;

QFont larger(QFont font, double factor) {
  font.setPointSizeF(font.pointSizeF() * factor);
  return font;
}

void addStep(QVBoxLayout& column, int number, const Word& text, QWidget* parent) {
  auto* row = new QHBoxLayout;
  row->setSpacing(14);
  auto* mark = new QLabel(QString::number(number), parent);
  QFont bold = larger(mark->font(), 1.15);
  bold.setBold(true);
  mark->setFont(bold);
  row->addWidget(mark, 0, Qt::AlignTop);
  auto* words = new QLabel(parent);
  whileSpoken(*words, [words, text] { words->setText(say(text)); });
  words->setFont(larger(words->font(), 1.15));
  words->setWordWrap(true);
  row->addWidget(words, 1);
  column.addLayout(row);
}

}  // namespace

QWidget* startPanel(Main& /*main*/, QWidget* parent) {
  const ScrolledPage made = scrolledPage(words::kStart, parent);
  auto* across = new QHBoxLayout(made.content);
  auto* text = new QWidget(made.content);
  text->setMaximumWidth(kTextWidth);
  auto* column = new QVBoxLayout(text);
  column->setSpacing(16);
  auto* title = new QLabel(text);
  whileSpoken(*title, [title] { title->setText(say(words::kStartTitle)); });
  title->setFont(larger(title->font(), 1.8));
  title->setWordWrap(true);
  column->addStretch(2);
  column->addWidget(title);
  addStep(*column, 1, words::kStartPort, text);
  addStep(*column, 2, words::kStartPage, text);
  addStep(*column, 3, words::kStartData, text);
  column->addStretch(3);
  across->addStretch(1);
  across->addWidget(text, 4);
  across->addStretch(1);
  return made.page;
}

}  // namespace zephon
