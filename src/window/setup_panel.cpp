#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QResizeEvent>
#include <QVBoxLayout>

#include "window/bindings.h"
#include "window/card.h"
#include "window/colours.h"
#include "window/fields.h"
#include "window/page.h"
#include "window/panels.h"
#include "window/words.h"

namespace zephon {
namespace {

const QString kVolts = QStringLiteral("V");
const QString kAmps = QStringLiteral("A");

constexpr int kTwoColumns = 720;
constexpr int kThreeColumns = 1080;

// As the editor's range stands.
QLabel* drawRange(NumEdit& element, const QString& unit, QWidget* parent) {
  auto* label = new QuietLabel(QString(), parent);
  const auto show = [label, &element, unit] {
    label->setText(rangeText(element.range(), unit));
    label->setVisible(element.visible());
  };
  watchWhile(*label, element, show);
  show();
  return label;
}

QWidget* limitsCard(SetupElements& page, QWidget* parent) {
  auto* card = new Card(words::kLimits, {&page.OVcoNumEdit, &page.OLreNumEdit}, parent);
  struct Row {
    Label* legend;
    NumEdit* editor;
    const QString& unit;
  };
  // From the highest voltage to the lowest, as they lie on the line.
  const Row rows[] = {{&page.OVcoLbl, &page.OVcoNumEdit, kVolts}, {&page.OVreLbl, &page.OVreNumEdit, kVolts},
                      {&page.OVrslbl, &page.OVrsNumEdit, kVolts}, {&page.UVrsLbl, &page.UVrsNumEdit, kVolts},
                      {&page.UVreLbl, &page.UVreNumEdit, kVolts}, {&page.UVcoLbl, &page.UVcoNumEdit, kVolts},
                      {&page.OLreLbl, &page.OLreNumEdit, kAmps}};
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(12);
  grid->setVerticalSpacing(7);
  grid->setColumnStretch(0, 1);
  int line = 0;
  for (const Row& row : rows) {
    QLabel* legend = draw(*row.legend, card);
    grid->addWidget(legend, line, 0);
    NumberField* field = draw(*row.editor, *row.legend, row.unit, card);
    field->setMinimumWidth(92);
    legend->setBuddy(field);
    grid->addWidget(field, line, 1);
    grid->addWidget(drawRange(*row.editor, row.unit, card), line++, 2);
  }
  card->column()->addLayout(grid);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(draw(page.defaultBtn, words::kDefaults, card));
  buttons->addWidget(draw(page.updateLimsBtn, words::kUpdateLimits, card), 1);
  card->column()->addLayout(buttons);
  return card;
}

QWidget* identityCard(SetupElements& page, QWidget* parent) {
  auto* card = new Card(words::kIdentity, {&page.userIDtxt}, parent);
  auto* row = new QHBoxLayout;
  row->addWidget(draw(page.userIDtxt, words::kIdentity, card), 1);
  row->addWidget(draw(page.updateIDBtn, words::kUpdateId, card));
  card->column()->addLayout(row);
  return card;
}

QWidget* clockCard(Main& main, QWidget* parent) {
  SetupElements& page = main.setup;
  auto* card = new Card(words::kClock, {&page.timeNumEdit}, parent);
  card->column()->addWidget(draw(page.timeNumEdit, words::kClock, card));
  auto* row = new QHBoxLayout;
  row->addWidget(draw(page.setTimeBtn, words::kSetTime, card), 1);
  row->addWidget(draw(page.setTimeAutoBtn, words::kSetTimeAuto, card), 1);
  card->column()->addLayout(row);
  card->column()->addWidget(draw(main.frame.EUlbl, card));
  return card;
}

QWidget* languageCard(ComElements& com, QWidget* parent) {
  auto* card = new Card(QString(), {&com.langCombo}, parent);
  auto* row = new QHBoxLayout;
  row->addWidget(draw(com.langLbl, card));
  row->addWidget(draw(com.langCombo, words::kLanguage, card), 1);
  nameBy(*card, words::kLanguage);
  card->column()->addLayout(row);
  return card;
}

// The wiring that is set stands in bold beside the switch.
QWidget* wiringRow(SetupElements& page, QWidget* parent) {
  auto* line = new QWidget(parent);
  auto* row = new QHBoxLayout(line);
  row->setContentsMargins(0, 0, 0, 0);
  QLabel* wye = draw(page.yLbl, line);
  QLabel* tap = draw(page.ctLbl, line);
  row->addWidget(tap);
  StateButton* knob = draw(page.YorCTbutton, words::kWiring, line, StateButton::Look::Switch);
  row->addWidget(knob);
  row->addWidget(wye);
  row->addStretch(1);
  const auto embolden = [wye, tap, knob, &page] {
    QFont font = wye->font();
    font.setBold(page.YorCTbutton.value());
    wye->setFont(font);
    font.setBold(!page.YorCTbutton.value());
    tap->setFont(font);
    knob->setAccessibleDescription(page.YorCTbutton.value() ? wye->text() : tap->text());
  };
  watchWhile(*line, page.yLbl, embolden);
  watchWhile(*line, page.ctLbl, embolden);
  watchWhile(*line, page.YorCTbutton, embolden);
  embolden();
  showWhileAny(*line, {&page.YorCTbutton});
  return line;
}

QWidget* optionsCard(SetupElements& page, QWidget* parent) {
  auto* card = new Card(words::kOptions,
                        {&page.enableAutoTXbtn, &page.startInternalCMbtn, &page.enableGndBtn,
                         &page.enableOLcoBtn, &page.enablePowerFailHoldBtn, &page.YorCTbutton},
                        parent);
  card->column()->addWidget(draw(page.enableAutoTXbtn, words::kAutoTransmit, card));
  card->column()->addWidget(draw(page.startInternalCMbtn, words::kInternalChart, card));
  card->column()->addWidget(draw(page.enableGndBtn, words::kGroundDetection, card));
  card->column()->addWidget(draw(page.enableOLcoBtn, words::kOverloadShutdown, card));
  card->column()->addWidget(draw(page.enablePowerFailHoldBtn, words::kPowerFailHold, card));
  card->column()->addWidget(wiringRow(page, card));
  return card;
}

// Three columns, two or one, as the width allows.
class Columns : public QWidget {
 public:
  Columns(Main& main, QWidget* parent) : QWidget(parent) {
    outer_ = new QBoxLayout(QBoxLayout::TopToBottom, this);
    outer_->setContentsMargins(0, 0, 0, 0);
    outer_->setSpacing(kPageGap);
    outer_->addWidget(limitsCard(main.setup, this), 0, Qt::AlignTop);
    inner_ = new QBoxLayout(QBoxLayout::TopToBottom);
    inner_->setSpacing(kPageGap);
    auto* device = new QVBoxLayout;
    device->setSpacing(kPageGap);
    device->addWidget(identityCard(main.setup, this));
    device->addWidget(clockCard(main, this));
    device->addWidget(languageCard(main.com, this));
    device->addStretch(1);
    inner_->addLayout(device, 1);
    inner_->addWidget(optionsCard(main.setup, this), 1, Qt::AlignTop);
    outer_->addLayout(inner_, 1);
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    const int width = event->size().width();
    outer_->setStretch(0, 1);
    outer_->setStretch(1, width >= kThreeColumns ? 2 : 1);
    outer_->setDirection(width >= kTwoColumns ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    inner_->setDirection(width >= kThreeColumns ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  }

 private:
  QBoxLayout* outer_;
  QBoxLayout* inner_;
};

}  // namespace

QWidget* setupPanel(Main& main, QWidget* parent) {
  const ScrolledPage made = scrolledPage(words::kSetup, parent);
  auto* column = new QVBoxLayout(made.content);
  column->setContentsMargins(kPageMargin, kPageMargin, kPageMargin, kPageMargin);
  auto* columns = new Columns(main, made.content);
  columns->setMaximumWidth(1240);
  column->addWidget(columns);
  column->addStretch(1);
  return made.page;
}

}  // namespace zephon
