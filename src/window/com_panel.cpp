#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include "window/bindings.h"
#include "window/card.h"
#include "window/fields.h"
#include "window/page.h"
#include "window/panels.h"
#include "window/words.h"

namespace zephon {
namespace {

constexpr int kCardWidth = 460;

QLabel* drawWrapped(Label& element, QWidget* parent) {
  QLabel* label = draw(element, parent);
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

QWidget* portCard(Main& main, QWidget* parent) {
  ComElements& page = main.com;
  auto* card = new Card(words::kComPort, {&page.comNumEdit}, parent);
  card->setMaximumWidth(kCardWidth);

  auto* used = new QHBoxLayout;
  used->setSpacing(0);
  used->addWidget(new QuietLabel(words::kPortInUse, card));
  QLabel* inUse = draw(main.frame.COMlbl, card);
  describeBy(*inUse, words::kComPort);
  used->addWidget(inUse, 1);
  card->column()->addLayout(used);

  auto* entry = new QHBoxLayout;
  NumberField* number = draw(page.comNumEdit, words::kComPort, QString(), card);
  number->setPrefix(QStringLiteral("COM"));
  entry->addWidget(number, 1);
  entry->addWidget(draw(page.saveComBtn, words::kSave, card), 1);
  card->column()->addLayout(entry);

  card->column()->addWidget(draw(page.detectComBtn, words::kDetectPort, card));
  card->column()->addWidget(drawProgress(page.searchProgSlide, words::kProgress, card));
  card->column()->addWidget(drawWrapped(page.portFoundLbl, card));
  return card;
}

QWidget* cableCard(ComElements& page, QWidget* parent) {
  auto* card = new Card(words::kUsbCable, {&page.cableLbl}, parent);
  card->setMaximumWidth(kCardWidth);
  card->column()->addWidget(drawWrapped(page.cableLbl, card));
  card->column()->addWidget(draw(page.configComBtn, words::kConfigurePort, card));
  return card;
}

QWidget* languageCard(ComElements& page, QWidget* parent) {
  auto* card = new Card(QString(), {&page.langCombo}, parent);
  nameBy(*card, words::kLanguage);
  card->setMaximumWidth(kCardWidth);
  auto* row = new QHBoxLayout;
  row->addWidget(draw(page.langLbl, card));
  row->addWidget(draw(page.langCombo, words::kLanguage, card), 1);
  card->column()->addLayout(row);
  return card;
}

}  // namespace

QWidget* comPanel(Main& main, QWidget* parent) {
  const ScrolledPage made = scrolledPage(words::kComPort, parent);
  auto* column = new QVBoxLayout(made.content);
  column->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kPageMargin);
  column->setSpacing(kPageGap);
  column->addWidget(portCard(main, made.content));
  column->addWidget(cableCard(main.com, made.content));
  column->addWidget(languageCard(main.com, made.content));
  column->addStretch(1);
  return made.page;
}

}  // namespace zephon
