#include "platform/timer.h"

#include <algorithm>

namespace zephon {
namespace {

constexpr double kShortestPeriod = 1;

}  // namespace

void Timer::setInterval(double milliseconds) {
  milliseconds_ = milliseconds;
  if (!enabled()) return;
  setEnabled(false);
  setEnabled(true);
}

void Timer::setEnabled(bool on) {
  if (on == enabled()) return;
  if (on) {
    schedule();
  } else {
    loop_.cancel(call_);
    call_ = 0;
  }
}

void Timer::schedule() {
  // A period of nothing would be due again in every pass, and no sleep would ever get past it.
  const double period = std::max(kShortestPeriod, milliseconds_);
  call_ = loop_.callAt(loop_.now() + fromMillis(period), [this] {
    schedule();  // first the next period: the handler may disable it
    if (onTick) onTick();
  });
}

}  // namespace zephon
