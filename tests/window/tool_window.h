#pragma once

#include <QApplication>
#include <QTest>

#include "shell/tool.h"
#include "window/graph_canvas.h"
#include "window/main_window.h"

namespace zephon::testing_support {

// The whole tool with its window and a simulated device, in virtual time; worked through its widgets.
struct ToolWindow : Tool {
  explicit ToolWindow(Button FrameElements::*page) {
    device.hold({.volts = 120, .amps = 10, .hertz = 60, .powerFactor = 1});
    window.resize(1280, 720);
    window.show();
    press(main.frame.*page);
    pass(500);
  }
  // Time goes on, and what there is then is drawn.
  void pass(double milliseconds) {
    run(milliseconds);
    for (int i = 0; i < 5; ++i) QApplication::processEvents();
  }
  QWidget* find(const std::string& name) { return window.findChild<QWidget*>(QString::fromStdString(name)); }
  GraphCanvas& canvas() { return dynamic_cast<GraphCanvas&>(*find("canvas")); }
  std::string readings() { return window.findChild<QLabel*>("readings")->text().toStdString(); }
  void click(const Button& button) {
    QTest::mouseClick(find(button.name()), Qt::LeftButton);
    pass(0);
  }
  void key(Qt::Key key, Qt::KeyboardModifiers held = {}) {
    QTest::keyClick(find("CWGraph2"), key, held);
    pass(0);
  }
  QPoint at(double x, std::size_t axis, double y) {
    return {qRound(canvas().xAxis->coordToPixel(x)), qRound(canvas().axis(axis).coordToPixel(y))};
  }
  void drag(QPoint from, QPoint to) {
    QTest::mousePress(&canvas(), Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, canvas().mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&canvas(), &move);
    QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, to);
    pass(0);
  }

  MainWindow window{main, [] {}};
};

}  // namespace zephon::testing_support
