#include "simulator/device_clock.h"

#include <array>
#include <chrono>
#include <cstdio>

#include "simulator/encode.h"

namespace zephon::simulator {

using namespace std::chrono;

namespace {

struct Calendar {
  explicit Calendar(std::int64_t unixSeconds)
      : moment(seconds(unixSeconds)), date(floor<days>(moment)), time(moment - floor<days>(moment)) {}

  sys_seconds moment;
  year_month_day date;
  hh_mm_ss<seconds> time;
};

char bcd(std::int64_t number) {
  return asChar(toBcd(number));
}

}  // namespace

std::string clockText(std::int64_t unixSeconds) {
  const Calendar at(unixSeconds);
  std::array<char, 40> text{};
  std::snprintf(text.data(), text.size(), "%02d:%02d:%02d %02u/%02u/%04d",
                static_cast<int>(at.time.hours().count()), static_cast<int>(at.time.minutes().count()),
                static_cast<int>(at.time.seconds().count()), static_cast<unsigned>(at.date.month()),
                static_cast<unsigned>(at.date.day()), static_cast<int>(at.date.year()));
  return text.data();
}

ClockBytes clockBytes(std::int64_t unixSeconds) {
  const Calendar at(unixSeconds);
  return {bcd(static_cast<int>(at.date.year()) - 2000),
          bcd(static_cast<unsigned>(at.date.month())),
          bcd(static_cast<unsigned>(at.date.day())),
          bcd(at.time.hours().count()),
          bcd(at.time.minutes().count()),
          bcd(at.time.seconds().count())};
}

std::optional<std::int64_t> clockFromBytes(std::string_view bytes) {
  if (bytes.size() != 7 || asByte(bytes[6]) > 6) return std::nullopt;
  std::array<int, 6> field{};
  for (std::size_t i = 0; i < field.size(); ++i) {
    const auto number = fromBcd(asByte(bytes[i]));
    if (!number) return std::nullopt;
    field[i] = *number;
  }
  const auto [hour, minute, second, mon, dayOfMonth, yearOfCentury] = field;
  const year_month_day date{year(2000 + yearOfCentury), month(static_cast<unsigned>(mon)),
                            day(static_cast<unsigned>(dayOfMonth))};
  if (hour > 23 || minute > 59 || second > 59 || !date.ok()) return std::nullopt;
  const sys_seconds moment = sys_days(date) + hours(hour) + minutes(minute) + seconds(second);
  return moment.time_since_epoch().count();
}

}  // namespace zephon::simulator
