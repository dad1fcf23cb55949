#include <gtest/gtest.h>

#include "logs/cursor_text.h"
#include "logs/event_log.h"
#include "logs/history_log.h"
#include "support/log_bytes.h"

namespace zephon {
namespace {

using namespace testing_support;

constexpr UtcOffset kFiveWest{5 / 24.0};
const std::string kBlank(8, '\xFF');
const CalendarTime kNight{2013, 5, 2, 2, 30, 15};  // 21:30:15 of the day before, five hours west

TEST(EventLog, decodesRecords) {
  const std::tuple<int, int, int, CalendarTime, std::array<double, 8>> rows[] = {
      {4, 100, 120, kNight, {13, 1, 5, 21, 30, 15, 4, 100}},
      {8, 100, 240, kNight, {13, 1, 5, 21, 30, 15, 8, 200}},
      {64, 31, 240, kNight, {13, 1, 5, 21, 30, 15, 64, 31}},
      {192, 31, 240, kNight, {13, 1, 5, 21, 30, 15, 192, 62}},
      {16, 133, 208, {2020, 3, 1, 0, 0, 0}, {20, 29, 2, 19, 0, 0, 16, 133 * (208 / 120.0)}}};
  for (const auto& [code, magnitude, volts, utc, row] : rows) {
    const std::string frame = eventFrame(eventRecord(code, utc, magnitude), 1);
    EXPECT_EQ(decodeEventFrame(frame, volts, kFiveWest), LogTable<8>{row}) << code;
  }
}

TEST(EventLog, countsRecords) {
  std::string data;
  for (int i = 0; i < 512; ++i) data += eventRecord(4, kNight, i % 256);
  const std::tuple<char, int, std::size_t> rows[] = {{'0', 110592 + 80, 10}, {'0', 110592 + 4, 0},
                                                     {'0', 110000, 0},       {'0', 0xFFFFFF, 512},
                                                     {'1', 110592, 512},     {'2', 110600, 0}};
  for (const auto& [flag, address, count] : rows) {
    std::string frame = eventFrame(data, 0, flag);
    frame.replace(1, 3, high(address, 3));
    EXPECT_EQ(decodeEventFrame(frame, 120, {})->size(), count) << flag << address;
  }
  for (const std::size_t size : {0u, 8195u, 8197u})
    EXPECT_FALSE(decodeEventFrame(filled(eventFrame(data, 512), size), 120, {})) << size;
}

TEST(EventLog, takesTheFirstBlankOut) {
  const auto at = [](int magnitude) { return eventRecord(4, kNight, magnitude); };
  const std::string zeros(8, '\0');
  const std::tuple<std::string, int, std::vector<double>> rows[] = {
      {at(1) + kBlank + at(2) + kBlank + kBlank + at(3), 6, {1, 2, 3}},
      // A record of zeros reads as blank and stays: the rest of the log is lost behind it.
      {at(1) + zeros + at(2), 3, {1}},
      // It begins behind the code and ends with the code of the next: the two join up.
      {'\x05' + kBlank.substr(1) + eventRecord(255, kNight, 9) + at(2), 3, {9, 2}},
      {kBlank + kBlank, 2, {}}};
  for (const auto& [data, records, expected] : rows) {
    std::vector<double> magnitudes;
    const auto events = *decodeEventFrame(eventFrame(data, records), 120, {});
    for (const auto& event : events) magnitudes.push_back(event[7]);
    EXPECT_EQ(magnitudes, expected);
  }
}

TEST(EventLog, takesTheSecondLinesTable) {
  std::vector<std::string> dict(120);
  dict[62] = "low";
  dict[61] = "high";
  dict[59] = "surge";
  PdEvents events;
  events[0] = {"surge", 0, 0, 0, 0, "05/01/13 10:00:01"};
  events[1] = {"high", 0, 0, 0, 0, "05/02/13 11:00:02"};
  events[2] = {"low", 0, 0, 0, 0, "12/31/13 12:00:03"};
  const Limits limits{.UVre = 100, .OVre = 135};
  const Counters counters{.poCount = 0, .uvcoCount = 7, .uvreCount = 1, .ovreCount = 1, .sgCount = 1};
  const LogTable<8> expected = {
      {13, 31, 12, 12, 0, 3, 4, 100}, {13, 2, 5, 11, 0, 2, 8, 135}, {13, 1, 5, 10, 0, 1, 32, 0}};
  EXPECT_EQ(eventsOfTable(events, counters, limits, dict), expected);
  EXPECT_FALSE(eventsOfTable(events, {.sgCount = 4}, limits, dict));  // row 3 has no date
  events.fill(events[0]);
  EXPECT_EQ(eventsOfTable(events, {.poCount = 2147483647, .sgCount = 2147483647}, limits, dict)->size(), 60u);
}

CalendarTime may31(int hour, int minute) {
  return {2013, 5, 31, hour, minute, 0};
}

TEST(HistoryLog, decodesRowsAndClosesThem) {
  // A full half hour, a quarter of one, and one of forty minutes up to the moment of the download.
  const std::string most("\xFF\xFF\xFF\xFF\xFF\xFF\0\x80\xFE\xFF", 10);
  const std::string data =
      historyRecord(may31(10, 35)) + historyRecord(may31(11, 5)) + historyRecord(may31(11, 20), most);
  const LogTable<12> expected = {{13, 31, 5, 5, 35, 0, 728.34, -4, 119.5, 125, 112, 1.5},
                                 {13, 31, 5, 6, 5, 0, 1457.01, -4, 239.05, 125, 112, 1.5},
                                 {13, 31, 5, 6, 20, 0, 477204.02, -131072, 932.05, 255, 255, 255.996},
                                 {13, 31, 5, 7, 0, 0, 0, 0, 0, 0, 0, 0}};
  EXPECT_EQ(decodeHistoryFrame(historyFrame(data, 3), 120, kFiveWest), expected);
  const auto doubled = *decodeHistoryFrame(historyFrame(data, 3), 240, kFiveWest);
  EXPECT_EQ(doubled[0], (HistoryRow{13, 31, 5, 5, 35, 0, 728.34, -4, 119.5, 250, 224, 1.5}));
}

TEST(HistoryLog, leavesOutWhatIsBlank) {
  const std::string two =
      historyRecord(may31(10, 0)) + std::string(16, '\xFF') + historyRecord(may31(10, 30));
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
  EXPECT_EQ(cursorText(41275, 0, 2, CursorPage::Data, true), "01/01/13 00:00:00  0.000 W Max");
  EXPECT_EQ(cursorText(12.5, -2.25, 1, CursorPage::Scope), "12.500 ms  -2.250 A");
}

}  // namespace
}  // namespace zephon
