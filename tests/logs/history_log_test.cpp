#include "logs/history_log.h"

#include <gtest/gtest.h>

#include "logs/cursor_text.h"
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
  const HalfHour most = {0xFFFF, 255, 255, 0xFFFF, 0x8000, 0xFFFE};
  const std::string data =
      historyRecord(at(10, 35)) + historyRecord(at(11, 5)) + historyRecord(at(11, 20), most);
  const LogTable<12> expected = {{13, 31, 5, 5, 35, 0, 728.34, -4, 119.5, 125, 112, 1.5},
                                 {13, 31, 5, 6, 5, 0, 1457.01, -4, 239.05, 125, 112, 1.5},
                                 {13, 31, 5, 6, 20, 0, 477204.02, -131072, 932.05, 255, 255, 255.996},
                                 {13, 31, 5, 7, 0, 0, 0, 0, 0, 0, 0, 0}};
  EXPECT_EQ(decodeHistoryFrame(historyFrame(data, 3), 120, kFiveWest), expected);
  const auto doubled = *decodeHistoryFrame(historyFrame(data, 3), 240, kFiveWest);
  EXPECT_EQ(doubled[0], (HistoryRow{13, 31, 5, 5, 35, 0, 728.34, -4, 119.5, 250, 224, 1.5}));
}

TEST(HistoryLog, leavesOutWhatIsBlank) {
  const std::string two = historyRecord(at(10, 0)) + std::string(16, '\xFF') + historyRecord(at(10, 30));
  const auto rows = *decodeHistoryFrame(historyFrame(two, 3), 120, {});
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[1][4], 30);
  EXPECT_EQ(rows[2], (HistoryRow{13, 31, 5, 12}));
  for (const auto& none : {historyFrame(two, 0), historyFrame("", 6911, '1'), historyFrame(two, 2, '3')})
    EXPECT_TRUE(decodeHistoryFrame(none, 120, {}).value().empty());
  EXPECT_EQ(decodeHistoryFrame(historyFrame(two, 3, '0', "no date at all here"), 120, {})->back(),
            HistoryRow{});
  EXPECT_FALSE(decodeHistoryFrame(historyFrame(two, 3).substr(1), 120, {}));
}

TEST(CursorText, readsOffDateValueAndUnit) {
  EXPECT_EQ(cursorText(41425.4375, 118.25, 0, CursorPage::Data), "05/31/13 10:30:00  118.250 V");
  EXPECT_EQ(cursorText(41425.4375, 118.25, 3, CursorPage::Chart), "05/31/13 10:30:00  118.25 V");
  EXPECT_EQ(cursorText(41425.4375, 2, 2, CursorPage::Chart, true), "05/31/13 10:30:00  2.0 W");
  EXPECT_EQ(cursorText(41275, 0, 2, CursorPage::Data, true), "01/01/13 00:00:00  0.000 W Max");
  EXPECT_EQ(cursorText(12.5, -2.25, 1, CursorPage::Scope), "12.500 ms  -2.250 A");
}

}  // namespace
}  // namespace zephon
