#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "simulator/event.h"
#include "simulator/record_ring.h"
#include "simulator/site.h"

namespace zephon::simulator {

// The event log of a first-line device: its last 512 events, starts and ends. A record has eight bytes, its
// date and time BCD in universal time.
//   0 code (event.h)   1 year since 2000   2 day   3 month   4 second   5 minute   6 hour   7 magnitude
// The magnitude is in volts on the 120 V basis, or in amps for an overload: what was seen at the start, and
// at the end the worst since. Outages and surges have none.
class EventLog {
 public:
  explicit EventLog(int rating) : rating_(rating) {}

  // The condition begins at a clock's time.
  void begin(Event event, std::int64_t clock, const SiteValues& seen);
  // What is seen while conditions last.
  void see(const SiteValues& seen);
  // The condition ends, if it has begun.
  void end(Event event, std::int64_t clock);

  // 8196 bytes: the ring's frame and 4096 bytes of erased memory.
  std::string frame() const;
  RecordRing& ring() { return ring_; }

 private:
  double level(Event event, const SiteValues& seen) const;
  void write(int code, std::int64_t clock, double magnitude);

  int rating_;
  RecordRing ring_{8, 512, 110592};
  std::array<std::optional<double>, kEvents> worst_{};  // of the conditions that last
};

}  // namespace zephon::simulator
