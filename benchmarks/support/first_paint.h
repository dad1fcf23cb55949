#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <string>

namespace zephon::benchmarks {

// Tells on standard output when the window had first been painted (monotonic clock, milliseconds), and the
// process's peak and present resident memory in KiB; then ends the program.
class FirstPaint : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* window, QEvent* event) override {
    if (event->type() == QEvent::Paint) {
      window->removeEventFilter(this);
      QTimer::singleShot(0, this, [] { tell(); });  // its widgets are painted in the same go
    }
    return false;
  }

 private:
  static void tell() {
    timespec now{};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    std::printf("%.3f %ld %ld\n",
                static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6,
                kibibytes("VmHWM:"), kibibytes("VmRSS:"));
    QCoreApplication::quit();
  }

  static long kibibytes(const std::string& key) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
      if (line.starts_with(key)) return std::stol(line.substr(key.size()));
    }
    return 0;
  }
};

inline void tellFirstPaint(QWidget& window) {
  window.installEventFilter(new FirstPaint(&window));
}

}  // namespace zephon::benchmarks
