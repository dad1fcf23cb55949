#include "simulator/log_writer.h"

namespace zephon::simulator {
namespace {

constexpr std::int64_t kHalfHour = 1800;
constexpr int kLossesOfABlank = 4;

// Rows end at the full and half hours of the device's clock.
double rowEndFrom(double now, const DeviceClock& clock) {
  return clock.momentOf((clock.at(now) / kHalfHour + 1) * kHalfHour);
}

}  // namespace

void LogWriter::see(double now, const DeviceClock& clock, const SiteValues& seen, bool powered) {
  if (now >= rowEnd_) {
    history_.end(now);
    beginRow(now, clock);
  }
  if (!powered && history_.running()) losePower(now, seen);
  if (powered && !history_.running()) {
    beginRow(now, clock);
    chart_.powerBack(now, clock.at(now));
  }
  events_.see(seen);
  history_.see(now, seen);
}

void LogWriter::clockSet(double now, const DeviceClock& clock) {
  if (history_.running()) rowEnd_ = rowEndFrom(now, clock);
  chart_.clockSet(now, clock.at(now));
}

void LogWriter::beginRow(double now, const DeviceClock& clock) {
  history_.begin(now, clock.at(now));
  rowEnd_ = rowEndFrom(now, clock);
}

// Now and then the power goes in the middle of a write, which leaves a place blank.
void LogWriter::losePower(double now, const SiteValues& seen) {
  history_.see(now, seen);
  history_.end(now);
  rowEnd_ = std::numeric_limits<double>::infinity();
  chart_.powerLost();
  if (++powerLosses_ % kLossesOfABlank != 0) return;
  history_.ring().leaveBlank();
  events_.ring().leaveBlank();
}

}  // namespace zephon::simulator
