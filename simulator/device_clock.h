#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zephon::simulator {

// A moment of universal time (seconds since 1970) as the device writes it: hh:mm:ss mm/dd/yyyy.
std::string clockText(std::int64_t unixSeconds);

// The moment that seven bytes set: hour, minute, second, month, day, year (BCD, years since 2000) and the
// weekday, Sunday 0. Nothing for bytes that are no date: the device then keeps its clock.
std::optional<std::int64_t> clockFromBytes(std::string_view bytes);

}  // namespace zephon::simulator
