#include "window/main_window.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QResizeEvent>
#include <QShortcut>
#include <QStackedWidget>
#include <algorithm>
#include <utility>

#include "form/shortcuts.h"
#include "window/bindings.h"
#include "window/header.h"
#include "window/page_rail.h"
#include "window/panels.h"
#include "window/qt_translation.h"
#include "window/status_line.h"
#include "window/window_place.h"
#include "window/words.h"

namespace zephon {
namespace {

struct PageDrawing {
  bool Pages::*flag;
  QWidget* (*panel)(Main&, QWidget*);
};

// In the stack's order, behind the start page.
constexpr PageDrawing kPages[] = {
    {&Pages::measuring, measurementPanel},
    {&Pages::scopeOn, scopePanel},
    {&Pages::chartOn, chartPanel},
    {&Pages::outletsOn, outletsPanel},
    {&Pages::dataOn, dataPanel},
    {&Pages::setupOn, setupPanel},
    {&Pages::comOn, comPanel},
};

}  // namespace

MainWindow::MainWindow(Main& main, std::function<void()> closing)
    : main_(main), closing_(std::move(closing)), pages_(nullptr) {
  const auto speakNow = [&main] {
    translateQt(main.config.language);
    speak(main.dict);
  };
  speakNow();
  main.around.keyName = keyInWords;
  watchWhile(*this, main.com.langCombo, speakNow);  // each dictionary fills the list anew
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  grid->addWidget(new PageRail(main.frame, this), 0, 0, 2, 1);
  grid->addWidget(new Header(main.frame, this), 0, 1);
  pages_ = new QStackedWidget(this);
  grid->addWidget(pages_, 1, 1);
  grid->addWidget(new StatusLine(main.frame, this), 2, 0, 1, 2);
  grid->setColumnStretch(1, 1);
  grid->setRowStretch(1, 1);

  pages_->addWidget(startPanel(main, pages_));
  for (const PageDrawing& page : kPages) pages_->addWidget(page.panel(main, pages_));
  // The page flags tell nobody of their change, but no page comes or goes without its elements. By the loop's
  // next turn the two agree.
  pageSoon_.setSingleShot(true);
  connect(&pageSoon_, &QTimer::timeout, this, [this] { showPage(); });
  for (Element* element : main.elements.all()) watchWhile(*this, *element, [this] { pageSoon_.start(0); });
  showPage();

  const auto entitle = [this] { setWindowTitle(toQt(main_.frame.formCaption.caption())); };
  watchWhile(*this, main.frame.formCaption, entitle);
  entitle();
  connect(new QShortcut(QKeySequence(shortcuts::kQuit.key), this), &QShortcut::activated, this,
          [this] { close(); });
  restorePlace(*this, main.around.folders.state);
}

void MainWindow::showPage() {
  const auto* const open = std::find_if(std::begin(kPages), std::end(kPages),
                                        [this](const PageDrawing& page) { return main_.pages.*page.flag; });
  pages_->setCurrentIndex(open == std::end(kPages) ? 0 : static_cast<int>(open - std::begin(kPages)) + 1);
}

// A window that is being minimised or comes back keeps the size that it had.
void MainWindow::resizeEvent(QResizeEvent* event) {
  if (!isMinimized()) main_.formSize = {event->size().width(), event->size().height()};
  QWidget::resizeEvent(event);
}

// Inks are made from the desktop's colours when they are drawn.
void MainWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) sayAnew();
  QWidget::changeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->accept();
  if (std::exchange(closed_, true)) return;
  keepPlace(*this, main_.around.folders.state);
  main_.ending = true;
  if (closing_) closing_();
}

}  // namespace zephon
