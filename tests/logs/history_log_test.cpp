#include "logs/history_log.h"

#include <gtest/gtest.h>

#include "logs/cursor_text.h"
#include "logs/slow_logs.h"
#include "support/log_bytes.h"

namespace zephon {
namespace {

using namespace testing_support;

constexpr UtcOffset kFiveWest{5 / 24.0};

CalendarTime at(int hour, int minute, int second = 0) {
  return {2013, 5, 31, hour, minute, second};
}

TEST(HistoryLog, decodesRowsAndClosesThem) {
  // A full half hour, a quarter of one, and one of forty minutes up to the moment of the download.
  const std::string data = historyRecord(at(10, 35)) + historyRecord(at(11, 5)) + historyRecord(at(11, 20));
  const LogTable<12> expected = {{13, 31, 5, 5, 35, 0, 728.34, -4, 119.5, 125, 112, 1.5},
                                 {13, 31, 5, 6, 5, 0, 1457.01, -4, 239.05, 125, 112, 1.5},
                                 {13, 31, 5, 6, 20, 0, 728.18, -4, 119.47, 125, 112, 1.5},
                                 {13, 31, 5, 7, 0, 0, 0, 0, 0, 0, 0, 0}};
  EXPECT_EQ(decodeHistoryFrame(historyFrame(data, 3), 120, kFiveWest), expected);
  const auto doubled = *decodeHistoryFrame(historyFrame(data, 3), 240, kFiveWest);
  EXPECT_EQ(doubled[0], (HistoryRow{13, 31, 5, 5, 35, 0, 728.34, -4, 119.5, 250, 224, 1.5}));
}

TEST(HistoryLog, leavesOutWhatIsBlank) {
  const std::string blank(16, '\xFF');
  const std::string two = historyRecord(at(10, 0)) + blank + historyRecord(at(10, 30));
  const auto rows = *decodeHistoryFrame(historyFrame(two, 3), 120, {});
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(historyRecords(rows), 2u);
  EXPECT_EQ(rows[1][4], 30);
  EXPECT_EQ(rows[2], (HistoryRow{13, 31, 5, 12}));
  EXPECT_EQ(decodeHistoryFrame(historyFrame(two, 0), 120, {})->size(), 0u);
  EXPECT_EQ(decodeHistoryFrame(historyFrame("", 6911, '1'), 120, {})->size(), 0u);
  EXPECT_EQ(decodeHistoryFrame(historyFrame(two, 2, '3'), 120, {})->size(), 0u);
  EXPECT_EQ(decodeHistoryFrame(historyFrame(two, 3, '0', "no date at all here"), 120, {})->back(),
            HistoryRow{});
  EXPECT_FALSE(decodeHistoryFrame(historyFrame(two, 3).substr(1), 120, {}));
}

TEST(HistoryLog, agreesWithTheLongWayOnEveryField) {
  const auto momentOf = [](const HistoryRow& row) {
    const auto part = [&](std::size_t i) { return static_cast<std::int16_t>(row[i]); };
    return sysTimeRecord{
        static_cast<std::int16_t>(part(0) + 2000), part(2), 0, part(1), part(3), part(4), part(5)};
  };
  // Every value of each 16-bit field, in whole wrapped logs.
  for (int first = 0; first < 65536; first += 6910) {
    std::string data;
    for (int field = first; field <= first + 6910; ++field) {
      data += historyRecord(calendarFromSeconds(3'600'000'000 + field * 1800LL),
                            {field, field & 0xFF, field >> 8, field, field, field});
    }
    const auto rows = *decodeHistoryFrame(historyFrame(data, 0, '1'), 230, kFiveWest);
    ASSERT_EQ(rows.size(), 6912u);
    for (std::size_t r = 0; r < 6911; ++r) {
      const double ratio = halfHourRatio(momentOf(rows[r]), momentOf(rows[r + 1]));
      const auto slow = slowHalfHour(data.substr(16 * r, 16), 230, ratio);
      ASSERT_TRUE(std::equal(slow.begin(), slow.end(), rows[r].begin() + 6)) << first + static_cast<int>(r);
    }
  }
}

TEST(CursorText, readsOffDateValueAndUnit) {
  EXPECT_EQ(cursorText(41425.4375, 118.25, 0, CursorPage::Data), "05/31/13 10:30:00  118.250 V");
  EXPECT_EQ(cursorText(41425.4375, 118.25, 3, CursorPage::Chart), "05/31/13 10:30:00  118.25 V");
  EXPECT_EQ(cursorText(41425.4375, 2, 2, CursorPage::Chart, true), "05/31/13 10:30:00  2.0 W");
  EXPECT_EQ(cursorText(41275, 0, 2, CursorPage::Data, true), "01/01/13 00:00:00  0.000 W Max");
}

}  // namespace
}  // namespace zephon
