#pragma once

#include <QTimer>
#include <chrono>

#include "platform/event_loop.h"

class QSocketNotifier;

namespace zephon {

// The loop of the program with a window: Qt's own, so the window's events, its dialogs and the timed calls
// are served together, whoever runs the loop. One timer stands for all timed calls, armed for the earliest;
// with none of them the program sleeps until the user or the line moves.
//
// Needs a QApplication. A user's event ends a sleep as Served.
class QtLoop : public EventLoop {
 public:
  QtLoop();
  Instant now() const override;
  void runOnce() override;
  Woke sleepUntil(Instant deadline, int descriptor = kNoDescriptor) override;

 protected:
  void callsChanged() override;

 private:
  void serve();

  std::chrono::steady_clock::time_point start_;
  QTimer next_;                         // fires when the earliest timed call is due
  QSocketNotifier* watched_ = nullptr;  // the descriptor of the innermost sleep that has one
};

}  // namespace zephon
