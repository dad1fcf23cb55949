#pragma once

#include <string>
#include <string_view>

#include "text/calendar.h"

namespace zephon {

// A moment as text through a picture: runs of the letters y, m, d, h, n, s in either case stand for the
// parts, anything else is copied. A run of "m" is minutes when the part before it is the hour, otherwise the
// month; "n" is always minutes. One letter writes the number as it is, two write two digits; of the year, up
// to two letters write its last two digits and more write four. Pictures in use:
//   "mm/dd/yy hh:nn:ss"  "mm/dd/yyyy"  "hh:mm:ss"  "mm-dd-yyyy hh.mm.ss"  "YYYYMMDDHHmmSS"
std::string formatDate(const CalendarTime& time, std::string_view picture);

// The same for a date value (days since 1899-12-30), to the nearest second.
std::string formatDate(double value, std::string_view picture);

}  // namespace zephon
