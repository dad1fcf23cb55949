#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "simulator/record_ring.h"
#include "simulator/site.h"

namespace zephon::simulator {

// The half hours of a first-line device: its last 6911 rows. A row has sixteen bytes; its date and time are
// those of its start, BCD in universal time, and its 16-bit fields have the low byte first.
//   0 year since 2000   1 day   2 month   3 second   4 minute   5 hour
//   6   maximum current, of 256 A
//   8   minimum, 9 maximum voltage, in volts on the 120 V basis
//   10  voltage: the top 16 of 32 bits of a total of twenty samples a second, each of 512 V in 16 bits
//   12  maximum power, signed, of 262144 W either side
//   14  power: the top 16 of 48 bits of such a total, 262144 W being one of the field
// A row that does not last half an hour has so much smaller totals; one of less than a minute is not kept.
//
// Times are seconds since the loop's start.
class HistoryLog {
 public:
  explicit HistoryLog(int rating) : rating_(rating) {}

  // A row begins, at a clock's time.
  void begin(double now, std::int64_t clock);
  // From now on the meters show this.
  void see(double now, const SiteValues& seen);
  // The row ends and is written.
  void end(double now);
  bool running() const { return row_.has_value(); }
  // Erases all; a row in progress begins anew.
  void clear(double now, std::int64_t clock);

  // 110599 bytes: the clock's text and the ring's frame. A row in progress is the newest in it.
  std::string frame(double now, std::int64_t clock) const;
  RecordRing& ring() { return ring_; }

 private:
  struct Row {
    std::int64_t clock;
    double from;
    double until;  // how far the totals reach
    double volts = 0, watts = 0;
    double voltSeconds = 0, wattSeconds = 0;
    double minVolts = 1e9, maxVolts = 0;
    double maxAmps = 0, maxWatts = -1e9;
    bool seen = false;

    void addUp(double now);
    bool kept() const { return seen && until - from >= 60.0; }
  };
  std::string bytesOf(const Row& row) const;

  int rating_;
  RecordRing ring_{16, 6911, 16};
  std::optional<Row> row_;
};

}  // namespace zephon::simulator
