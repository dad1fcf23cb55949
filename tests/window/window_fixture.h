#pragma once

#include <gtest/gtest.h>

#include "window/bare_main.h"
#include "window/hands.h"
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

  void open(bool Pages::*page) {
    bare.open(page);
    settle();
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
