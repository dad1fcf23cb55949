// An empty main window, until it is painted.

#include <QApplication>
#include <QMainWindow>

#include "support/first_paint.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  window.resize(1024, 700);
  zephon::benchmarks::tellFirstPaint(window);
  window.show();
  return QApplication::exec();
}
