#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <vector>

#include "window/bare_main.h"
#include "window/main_window.h"

namespace zephon::testing_support {

// The window over a bare form in virtual time; widgets are found by their element's name.
class WindowTest : public testing::Test {
 protected:
  WindowTest() {
    EXPECT_EQ(bare.fault, "");
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
  // Our widgets have no meta objects of their own, so Qt can't tell them apart.
  template <class Widget>
  std::vector<Widget*> shown() {
    std::vector<Widget*> found;
    for (auto* widget : window.findChildren<QWidget*>()) {
      auto* wanted = dynamic_cast<Widget*>(widget);
      if (wanted && wanted->isVisible()) found.push_back(wanted);
    }
    return found;
  }
  template <class Widget = QWidget>
  Widget* find(const Element& element) {
    auto* found = dynamic_cast<Widget*>(window.findChild<QWidget*>(QString::fromStdString(element.name())));
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
