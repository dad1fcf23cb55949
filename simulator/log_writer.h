#pragma once

#include <limits>

#include "simulator/chart_memory.h"
#include "simulator/device_clock.h"
#include "simulator/event_log.h"
#include "simulator/history_log.h"

namespace zephon::simulator {

// Decides when a first-line device writes what into its logs. The device lives on the line that it watches:
// without power it neither sums nor samples, and its rows are cut short. Times are seconds since the loop's
// start. The logs must outlive it.
class LogWriter {
 public:
  LogWriter(EventLog& events, HistoryLog& history, ChartMemory& chart)
      : events_(events), history_(history), chart_(chart) {}

  // When the row in progress ends and it has to see.
  double endOfRow() const { return rowEnd_; }
  // From now on the meters show this, with or without power on the line.
  void see(double now, const DeviceClock& clock, const SiteValues& seen, bool powered);
  // The clock has been set. The row in progress ends with the next half hour of the new time.
  void clockSet(double now, const DeviceClock& clock);

 private:
  void beginRow(double now, const DeviceClock& clock);
  void losePower(double now, const SiteValues& seen);

  EventLog& events_;
  HistoryLog& history_;
  ChartMemory& chart_;
  double rowEnd_ = std::numeric_limits<double>::infinity();
  int powerLosses_ = 0;
};

}  // namespace zephon::simulator
