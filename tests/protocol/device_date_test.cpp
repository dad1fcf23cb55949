#include "protocol/device_date.h"

#include <gtest/gtest.h>

#include <cmath>

#include "protocol/event_codes.h"
#include "protocol/month_names.h"
#include "text/date_picture.h"

// The dates and the event codes of the device's logs.

namespace zephon {
namespace {

sysTimeRecord at(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
  return recordOf({year, month, day, hour, minute, second});
}

TEST(DeviceDate, turnsUniversalIntoLocalTime) {
  const std::tuple<const char*, double, const char*> rows[] = {
      {"23:59:58 12/31/2018", -1, "00:59:58 01/01/2019"},
      {"03:00:00 03/01/2024", 8, "19:00:00 02/29/2024"},
      {"1A:61:00 01/01/2013", 0, "02:01:00 01/01/2013"},
      {"00:00:00 00/00/2013", 0, "00:00:00 11/30/2012"},
      {"00:00:00 01/01/0100", 1, ""},
      {"00:00:00 01/01/9e99", 0, ""}};
  for (const auto& [universal, hoursWest, local] : rows)
    EXPECT_EQ(localTimeString(universal, {hoursWest / 24}), local);
}

TEST(DeviceDate, keepsItsMomentInEveryZone) {
  for (int minutes = -14 * 60; minutes <= 14 * 60; minutes += 15) {
    const WallMoment moment{
        at(2019, 3, 10, 6, 59, 59),
        recordOf(calendarFromSeconds(calendarSeconds({2019, 3, 10, 6, 59, 59}) - minutes * 60))};
    const UtcOffset offset = utcOffset(moment);
    EXPECT_EQ(offset.days, minutes / 1440.0);
    EXPECT_EQ(localTimeString("06:59:59 03/10/2019", offset), deviceDateText(moment.local));
    EXPECT_EQ(localTimeString("00:00:00 00/00/200", offset).substr(15), "0199") << minutes;
  }
}

TEST(DaySerial, knowsThreeLeapYears) {
  const std::pair<sysTimeRecord, double> rows[] = {{at(2012, 2, 29), 40968}, {at(2024, 2, 29), 45351},
                                                   {at(2024, 3, 1), 45351},  {at(2024, 12, 31), 45656},
                                                   {at(2025, 1, 1), 45654},  {at(2013, 1, 1, 6), 41275.25}};
  for (const auto& [date, serial] : rows)
    EXPECT_EQ(dateSerial(date), serial) << date.year << ' ' << date.month;
}

TEST(DaySerial, readsBackTheLaterOfTwoDates) {
  for (std::int64_t day = calendarDay(2000, 1, 1); day < calendarDay(2041, 1, 1); ++day) {
    const std::int64_t seconds = day * kSecondsPerDay + day % kSecondsPerDay;
    const double serial = dateSerial(recordOf(calendarFromSeconds(seconds)));
    const sysTimeRecord back = dateOfSerial(serial);
    const std::int64_t read = calendarSeconds(calendarOf(back));
    ASSERT_EQ(dateSerial(back), serial) << deviceDateText(back);
    ASSERT_GE(read, seconds) << deviceDateText(back);
    ASSERT_EQ(back.dayOfWeek, weekday(read / kSecondsPerDay));
  }
  EXPECT_EQ(dateSerialText(45351.999999, "mm/dd/yy hh:nn:ss"), "03/02/24 00:00:00");
  EXPECT_EQ(dateSerialText(std::nan(""), "mm/dd/yyyy"), "12/03/1899");
  for (const double far : {1e300, -1e300}) EXPECT_NEAR(dateOfSerial(far).year, std::copysign(10000, far), 10);
}

TEST(DaySerial, correctsRowsCutShort) {
  EXPECT_NEAR(halfHourRatio(at(2013, 5, 1, 10), at(2013, 5, 1, 10, 30)), 1.00022, 1e-5);
  EXPECT_NEAR(halfHourRatio(at(2013, 5, 1, 23, 50), at(2013, 5, 2, 0, 5)), 2, 1e-3);
  EXPECT_EQ(halfHourRatio(at(2013, 5, 1, 10), at(2013, 5, 1, 10, 31)), 1);
  EXPECT_EQ(halfHourRatio(at(2024, 12, 31, 23, 30), at(2025, 1, 1)), 1);  // the day number falls back here
}

TEST(DeviceDate, countsWholeDays) {
  EXPECT_EQ(dayDifference("00:00:00 03/01/2013", "12:00:00 03/03/2013"), 2);  // halves to even
  EXPECT_EQ(dayDifference("12:00:00 03/04/2013", "00:00:00 03/01/2013"), -4);
  EXPECT_EQ(dayDifference("00:00:00 01/01/2013", ""), 0);  // 735000 days do not fit
}

TEST(EventCodes, findsTextsAndCodes) {
  std::vector<std::string> dict;
  for (int key = 0; key <= 270; ++key) dict.push_back("k" + std::to_string(key));
  const std::pair<double, const char*> rows[] = {{1, "k64"},  {8, "k61"},    {32, "k59"},
                                                 {64, "k65"}, {129, "k113"}, {192, "k119"}};
  for (const auto& [code, text] : rows) {
    EXPECT_EQ(pqString(code, dict), text);
    EXPECT_EQ(pqNumber(text, dict), code);
  }
  for (const double code : {0.0, 3.0, 128.0, 1.5, 257.0, -1.0}) EXPECT_EQ(pqString(code, dict), "") << code;
  for (const char* text : {"", "K64", "k64 ", "k66"}) EXPECT_EQ(pqNumber(text, dict), 0) << text;
  EXPECT_EQ(monthString(12, dict), "k112");
  for (const double month : {0.0, 13.0, 1.5}) EXPECT_EQ(monthString(month, dict), "") << month;
}

}  // namespace
}  // namespace zephon
