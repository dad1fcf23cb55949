// The tool's window, until it is painted.

#include <QApplication>

#include "support/first_paint.h"
#include "support/tool.h"
#include "window/main_window.h"
#include "window/qt_loop.h"

int main(int argc, char** argv) {
  using namespace zephon;
  QApplication application(argc, argv);
  QtLoop loop;
  benchmarks::NoDialogs dialogs;
  benchmarks::Tool tool(loop, dialogs, {});
  MainWindow window(tool.main, [] {});
  benchmarks::tellFirstPaint(window);
  window.show();
  return QApplication::exec();
}
