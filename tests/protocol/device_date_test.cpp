#include "protocol/device_date.h"

#include <gtest/gtest.h>

#include <cmath>

#include "text/date_picture.h"

namespace zephon {
namespace {

sysTimeRecord at(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
  return recordOf({year, month, day, hour, minute, second});
}

TEST(DeviceDate, turnsUniversalIntoLocalTime) {
  const std::tuple<const char*, double, const char*> rows[] = {
      {"23:59:58 12/31/2018", -1, "00:59:58 01/01/2019"},
      {"03:00:00 03/01/2024", 8, "19:00:00 02/29/2024"},
      {"12:34:56 07/08/209", 0, "12:34:56 07/08/0209"},
      {"00:00:00 01/01/2013", -5.75, "05:45:00 01/01/2013"},
      {"1A:61:00 01/01/2013", 0, "02:01:00 01/01/2013"},
      {"00:00:00 00/00/2013", 0, "00:00:00 11/30/2012"},
      {"", 0, ""},
      {"00:00:00 01/01/0100", 1, ""},
      {"23:00:00 12/31/9999", -1, ""},
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
    EXPECT_EQ(localTimeString(deviceDateText(moment.local), {-offset.days}), "06:59:59 03/10/2019");
    const std::string blank = localTimeString("00:00:00 00/00/200", offset);
    EXPECT_EQ(blank.substr(15), "0199") << blank;
  }
}

TEST(DeviceDate, writesAndReadsItsText) {
  EXPECT_EQ(hexDateText({0x23, 0x59, 0x5A, 0x12, 0x31, 0x09}), "23:59:5A 12/31/2009");
  const auto time = plainDeviceDate("23:59:58 12/31/2018");
  ASSERT_TRUE(time);
  EXPECT_EQ(systemTimeToDate(*time), dateValue({2018, 12, 31, 23, 59, 58}));
  for (const char* text : {"", "23:59:58 12/31/", "23:59:5x 12/31/2018"})
    EXPECT_FALSE(plainDeviceDate(text)) << text;
}

TEST(DaySerial, knowsThreeLeapYears) {
  const std::pair<sysTimeRecord, double> rows[] = {{at(2012, 2, 29), 40968}, {at(2024, 2, 29), 45351},
                                                   {at(2024, 3, 1), 45351},  {at(2024, 12, 31), 45656},
                                                   {at(2025, 1, 1), 45654},  {at(2013, 1, 1, 6), 41275.25}};
  for (const auto& [date, serial] : rows)
    EXPECT_EQ(dateSerial(date), serial) << date.year << ' ' << date.month;
  for (double day = 40969; day < 45351; ++day) ASSERT_EQ(dateSerial(recordOf(calendarFromValue(day))), day);
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
  EXPECT_EQ(halfHourRatio(at(2013, 5, 1, 10), at(2013, 5, 1, 10)), 1);
}

TEST(DeviceDate, countsWholeDays) {
  EXPECT_EQ(dayDifference("00:00:00 03/01/2013", "12:00:00 03/03/2013"), 2);  // halves to even
  EXPECT_EQ(dayDifference("12:00:00 03/04/2013", "00:00:00 03/01/2013"), -4);
  EXPECT_EQ(dayDifference("00:00:00 01/01/2013", ""), 0);  // 735000 days do not fit
  EXPECT_EQ(dayDifference("00:00:00 01/01/9e99", "00:00:00 01/01/2013"), 0);
}

TEST(DeviceDate, takesMinutesOffATimeOfDay) {
  EXPECT_EQ(dateTimeCalc("00:10:05", 15), "24:55:5");
  EXPECT_EQ(dateTimeCalc("02:29:07", 30), "1:59:7");
  EXPECT_EQ(dateTimeCalc("10:30:00", 45.5), "10:-15.5:0");
}

}  // namespace
}  // namespace zephon
