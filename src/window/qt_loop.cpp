#include "window/qt_loop.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QSocketNotifier>
#include <algorithm>
#include <optional>

namespace zephon {
namespace {

// Never early: a timer that fires before its call is due would have to be armed again. A day at most, since
// Qt counts milliseconds in an int; a longer span is served in stages.
int millisUntil(Instant when, Instant moment) {
  constexpr Instant kDay = std::chrono::hours(24);
  const Instant left = when <= moment ? Instant{0} : std::min(when - moment, kDay);
  return static_cast<int>(std::chrono::ceil<std::chrono::milliseconds>(left).count());
}

void arm(QTimer& timer, Instant when, Instant moment) {
  if (when == kNever) {
    timer.stop();
  } else {
    timer.start(millisUntil(when, moment));
  }
}

}  // namespace

QtLoop::QtLoop() : start_(std::chrono::steady_clock::now()) {
  next_.setSingleShot(true);
  next_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&next_, &QTimer::timeout, &next_, [this] { serve(); });
}

Instant QtLoop::now() const {
  return std::chrono::steady_clock::now() - start_;
}

void QtLoop::callsChanged() {
  arm(next_, nextCall(), now());
}

void QtLoop::serve() {
  if (!serveCalls(now())) callsChanged();
}

void QtLoop::runOnce() {
  serveCalls(now());
  QCoreApplication::processEvents();
}

Woke QtLoop::sleepUntil(Instant deadline, int descriptor) {
  if (serveCalls(now())) return Woke::Served;

  bool readable = false;
  std::optional<QSocketNotifier> notifier;
  // An outer sleep may watch the same descriptor; it ends as Served after this one, whatever its line does.
  QSocketNotifier* const outer = watched_;
  if (descriptor != kNoDescriptor) {
    if (outer) outer->setEnabled(false);
    notifier.emplace(descriptor, QSocketNotifier::Read);
    // Once only: whoever runs the loop before the bytes are read must not be woken by them again and again.
    QObject::connect(&*notifier, &QSocketNotifier::activated, &*notifier, [&] {
      readable = true;
      notifier->setEnabled(false);
    });
    watched_ = &*notifier;
  }

  QTimer end;  // its only work is to wake the dispatcher
  end.setSingleShot(true);
  end.setTimerType(Qt::PreciseTimer);
  arm(end, deadline, now());
  QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
  watched_ = outer;

  if (readable) return Woke::Readable;
  return now() >= deadline ? Woke::Deadline : Woke::Served;
}

}  // namespace zephon
