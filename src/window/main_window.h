#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>

#include "form/main.h"

class QStackedWidget;

namespace zephon {

// The one window: the page buttons at the left, the header above, the link's state below, and between them
// the page whose flag is set. It draws Main's elements, so Main must outlive it.
class MainWindow : public QWidget {
 public:
  // `closing` runs once, when the window closes, after Main has been told that the program is ending.
  MainWindow(Main& main, std::function<void()> closing);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void showPage();

  Main& main_;
  std::function<void()> closing_;
  QStackedWidget* pages_;
  QTimer pageSoon_;
  bool closed_ = false;
};

}  // namespace zephon
