#include "logs/local_clock.h"

#include "protocol/encodings.h"

namespace zephon {
namespace {

int yearOf(std::uint8_t byte) {
  const int number = bcdByte(byte);
  return number < 10 ? 200 + number : 2000 + number;
}

}  // namespace

CalendarTime LocalClock::local(const DeviceDateBytes& bytes) {
  const std::uint32_t dateBytes = 1u << 24 | bytes.year << 16 | bytes.month << 8 | bytes.day;
  if (dateBytes != knownBytes_) {
    knownBytes_ = dateBytes;
    knownDay_ = calendarDay(yearOf(bytes.year), bcdByte(bytes.month), bcdByte(bytes.day));
  }
  const int intoDay = bcdByte(bytes.hour) * 3600 + bcdByte(bytes.minute) * 60 + bcdByte(bytes.second);
  const std::int64_t seconds = knownDay_ * kSecondsPerDay + intoDay - offsetSeconds_;
  const std::int64_t intoKnown = seconds - localDay_ * kSecondsPerDay;
  if (localDate_.year == 0 || intoKnown < 0 || intoKnown >= kSecondsPerDay) {
    localDate_ = calendarFromSeconds(seconds);
    const int intoLocal = localDate_.hour * 3600 + localDate_.minute * 60 + localDate_.second;
    localDay_ = (seconds - intoLocal) / kSecondsPerDay;
    return localDate_;
  }
  const int rest = static_cast<int>(intoKnown);
  CalendarTime time = localDate_;
  time.hour = rest / 3600;
  time.minute = rest / 60 % 60;
  time.second = rest % 60;
  return time;
}

}  // namespace zephon
