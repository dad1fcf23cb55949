#include "platform/wall_clock.h"

#include <sys/time.h>
#include <time.h>

#include <chrono>

#include "platform/event_loop.h"

namespace zephon {
namespace {

sysTimeRecord fromTm(const tm& t, int milliseconds) {
  return {static_cast<std::int16_t>(t.tm_year + 1900), static_cast<std::int16_t>(t.tm_mon + 1),
          static_cast<std::int16_t>(t.tm_wday),        static_cast<std::int16_t>(t.tm_mday),
          static_cast<std::int16_t>(t.tm_hour),        static_cast<std::int16_t>(t.tm_min),
          static_cast<std::int16_t>(t.tm_sec),         static_cast<std::int16_t>(milliseconds)};
}

sysTimeRecord utcRecord(time_t seconds, int milliseconds) {
  tm parts{};
  gmtime_r(&seconds, &parts);
  return fromTm(parts, milliseconds);
}

}  // namespace

WallMoment SystemClock::now() const {
  timeval moment{};
  gettimeofday(&moment, nullptr);
  const int milliseconds = static_cast<int>(moment.tv_usec / 1000);
  tm local{};
  localtime_r(&moment.tv_sec, &local);
  return {utcRecord(moment.tv_sec, milliseconds), fromTm(local, milliseconds)};
}

WallMoment LoopClock::now() const {
  const auto total = std::chrono::duration_cast<std::chrono::milliseconds>(loop_.now()).count();
  const time_t seconds = static_cast<time_t>(unixStart_ + total / 1000);
  const int milliseconds = static_cast<int>(total % 1000);
  return {utcRecord(seconds, milliseconds), utcRecord(seconds + time_t{minutesEast_} * 60, milliseconds)};
}

}  // namespace zephon
