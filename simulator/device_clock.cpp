#include "simulator/device_clock.h"

#include <array>
#include <chrono>
#include <cstdio>

#include "simulator/encode.h"

namespace zephon::simulator {

using namespace std::chrono;

std::string clockText(std::int64_t unixSeconds) {
  const sys_seconds moment{seconds(unixSeconds)};
  const auto midnight = floor<days>(moment);
  const year_month_day date(midnight);
  const hh_mm_ss time(moment - midnight);
  std::array<char, 40> text{};
  std::snprintf(text.data(), text.size(), "%02d:%02d:%02d %02u/%02u/%04d",
                static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                static_cast<int>(time.seconds().count()), static_cast<unsigned>(date.month()),
                static_cast<unsigned>(date.day()), static_cast<int>(date.year()));
  return text.data();
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
