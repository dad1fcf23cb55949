#pragma once

#include <cstdint>

namespace zephon {

// A calendar moment as the platform tells it: eight 16-bit fields. The weekday counts from Sunday, 0.
struct sysTimeRecord {
  std::int16_t year = 0;  // four digits
  std::int16_t month = 0;
  std::int16_t dayOfWeek = 0;
  std::int16_t day = 0;
  std::int16_t hour = 0;
  std::int16_t minute = 0;
  std::int16_t second = 0;
  std::int16_t milliseconds = 0;
};

// One moment, told in both times, so that their difference is exact.
struct WallMoment {
  sysTimeRecord utc;
  sysTimeRecord local;
};

class WallClock {
 public:
  WallClock() = default;
  WallClock(const WallClock&) = delete;
  WallClock& operator=(const WallClock&) = delete;
  virtual ~WallClock() = default;
  virtual WallMoment now() const = 0;
};

// The computer's clock and time zone.
class SystemClock : public WallClock {
 public:
  WallMoment now() const override;
};

// A clock for tests: starts at a given universal time (seconds since 1970), a fixed distance east of
// Greenwich, and runs with a loop's time.
class EventLoop;
class LoopClock : public WallClock {
 public:
  LoopClock(const EventLoop& loop, std::int64_t unixStart, int minutesEast)
      : loop_(loop), unixStart_(unixStart), minutesEast_(minutesEast) {}
  WallMoment now() const override;
  void setMinutesEast(int minutes) { minutesEast_ = minutes; }

 private:
  const EventLoop& loop_;
  std::int64_t unixStart_;
  int minutesEast_;
};

}  // namespace zephon
