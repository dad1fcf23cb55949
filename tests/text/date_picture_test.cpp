#include "text/date_picture.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>

namespace zephon {
namespace {

TEST(Calendar, agreesWithTheLibraryOnEveryDay) {
  for (std::int64_t day = calendarDay(-5, 1, 1); day < calendarDay(2110, 1, 1); ++day) {
    const std::chrono::year_month_day date{std::chrono::sys_days{std::chrono::days{day - 25569}}};
    const CalendarTime expected{
        int(date.year()), int(unsigned(date.month())), int(unsigned(date.day())), 23, 59, 59};
    ASSERT_EQ(calendarSeconds(expected), (day + 1) * kSecondsPerDay - 1);
    ASSERT_EQ(calendarFromSeconds(calendarSeconds(expected)), expected) << day;
  }
}

TEST(Calendar, carriesPartsOutOfRange) {
  const std::pair<CalendarTime, CalendarTime> rows[] = {{{200, 0, 0, 0, 0, 0}, {199, 11, 30, 0, 0, 0}},
                                                        {{2024, 2, 30, 25, 61, 61}, {2024, 3, 2, 2, 2, 1}},
                                                        {{2013, 14, 1, 0, 0, -1}, {2014, 1, 31, 23, 59, 59}}};
  for (const auto& [parts, carried] : rows) {
    EXPECT_EQ(calendarFromSeconds(calendarSeconds(parts)), carried) << parts.year;
    EXPECT_EQ(calendarFromValue(dateValue(parts)), carried) << parts.year;
  }
}

TEST(Calendar, readsDateValuesToTheNearestSecond) {
  EXPECT_EQ(dateValue({2018, 12, 31, 12, 0, 0}), 43465.5);
  EXPECT_EQ(calendarFromValue(43465.999999), (CalendarTime{2019, 1, 1, 0, 0, 0}));
  EXPECT_EQ(calendarFromValue(std::nan("")), (CalendarTime{1899, 12, 30, 0, 0, 0}));
  EXPECT_EQ(calendarFromValue(1e300), (CalendarTime{9999, 12, 31, 23, 59, 59}));
  EXPECT_EQ(weekdayOfValue(43463.999999), 0);  // Sunday, as its text says
}

TEST(DatePicture, tellsMonthsFromMinutes) {
  const CalendarTime time{2009, 2, 3, 4, 5, 6};
  const std::pair<const char*, const char*> rows[] = {{"mm/dd/yy hh:nn:ss", "02/03/09 04:05:06"},
                                                      {"YYYYMMDDHHmmSS", "20090203040506"},
                                                      {"m/d h:n mm", "2/3 4:5 02"}};
  for (const auto& [picture, text] : rows) EXPECT_EQ(formatDate(time, picture), text);
  EXPECT_EQ(formatDate(dateValue(time) + 0.4 / kSecondsPerDay, "hh:mm:ss"), "04:05:06");
}

}  // namespace
}  // namespace zephon
