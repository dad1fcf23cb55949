#include "window/run_window.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QSocketNotifier>
#include <array>
#include <memory>
#include <utility>

#include "window/glyph.h"
#include "window/main_window.h"
#include "window/qt_dialogs.h"
#include "window/qt_loop.h"

namespace zephon {
namespace {

// A signal's handler may do no more than write a byte into a pipe; the loop reads it and closes the window.
std::array<int, 2> signalPipe{-1, -1};

void onSignal(int /*number*/) {
  const char byte = 0;
  [[maybe_unused]] const auto written = ::write(signalPipe[1], &byte, 1);
}

class SignalWatch {
 public:
  SignalWatch() {
    if (::pipe2(signalPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    struct sigaction action {};
    action.sa_handler = onSignal;
    action.sa_flags = SA_RESTART;
    ::sigaction(SIGTERM, &action, &before_[0]);
    ::sigaction(SIGINT, &action, &before_[1]);
    stands_ = true;
  }
  SignalWatch(const SignalWatch&) = delete;
  SignalWatch& operator=(const SignalWatch&) = delete;
  ~SignalWatch() {
    if (!stands_) return;
    ::sigaction(SIGTERM, &before_[0], nullptr);
    ::sigaction(SIGINT, &before_[1], nullptr);
    for (int& end : signalPipe) ::close(std::exchange(end, -1));
  }

  bool stands() const { return stands_; }

 private:
  std::array<struct sigaction, 2> before_{};
  bool stands_ = false;
};

QIcon programIcon() {
  QIcon icon;
  for (const int side : {16, 32, 64, 128}) {
    QPixmap picture(side, side);
    picture.fill(QColor(0x24, 0x4a, 0x66));
    QPainter painter(&picture);
    drawGlyph(painter, QRectF(picture.rect()).adjusted(side * 0.1, side * 0.1, -side * 0.1, -side * 0.1),
              Glyph::Measure, Qt::white);
    icon.addPixmap(picture);
  }
  return icon;
}

int showWindow(Main& main, QtDialogs& dialogs, const std::function<void()>& closing) {
  MainWindow window(main, [&] {
    if (closing) closing();
    dialogs.close();
    QCoreApplication::exit(0);
  });
  dialogs.setWindow(&window);
  const SignalWatch signalWatch;
  std::unique_ptr<QSocketNotifier> caught;
  if (signalWatch.stands()) {
    caught = std::make_unique<QSocketNotifier>(signalPipe[0], QSocketNotifier::Read);
    QObject::connect(caught.get(), &QSocketNotifier::activated, &window, [&] {
      caught->setEnabled(false);
      window.close();
    });
  }
  window.show();
  return QApplication::exec();
}

}  // namespace

int runWindow(int& argc, char** argv, const std::function<int(const WindowedProgram&)>& program) {
  QApplication application(argc, argv);
  QApplication::setWindowIcon(programIcon());
  QApplication::setQuitOnLastWindowClosed(false);  // a box that closes before the window stands ends nothing
  QtLoop loop;
  QtDialogs dialogs;
  return program({loop, dialogs, [&](Main& main, const std::function<void()>& closing) {
                    return showWindow(main, dialogs, closing);
                  }});
}

}  // namespace zephon
