#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "window/bare_main.h"
#include "window/main_window.h"

namespace zephon::testing_support {

// The window over a bare form in virtual time; widgets are found by their element's name.
class WindowTest : public testing::Test {
 protected:
  WindowTest() {
    window.resize(1024, 600);
    window.show();
    window.activateWindow();
    settle();
  }

  static void settle() {
    for (int pass = 0; pass < 5; ++pass) QApplication::processEvents();
  }
  void open(bool Pages::*page) {
    bare.open(page);
    settle();
  }
  template <class Widget = QWidget>
  Widget* find(const Element& element) {
    auto* found = window.findChild<Widget*>(QString::fromStdString(element.name()));
    EXPECT_NE(found, nullptr) << element.name();
    return found;
  }

  VirtualLoop loop;
  BareMain bare{loop};
  Main& main = bare.main;
  int closings = 0;
  MainWindow window{main, [this] { ++closings; }};
};

}  // namespace zephon::testing_support
