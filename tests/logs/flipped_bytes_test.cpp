#include <gtest/gtest.h>

#include "logs/chart_memory.h"
#include "logs/event_log.h"
#include "logs/history_log.h"
#include "support/log_bytes.h"

// A bit that flips on its way spoils the field that it belongs to, and nothing else in the log.

namespace zephon {
namespace {

using namespace testing_support;

constexpr UtcOffset kTwoEast{-2 / 24.0};
constexpr std::size_t kRecords = 4, kHit = 2;

using Rows = std::vector<std::vector<double>>;
template <class Table>
Rows rowsOf(const Table& table) {
  Rows rows;
  for (const auto& row : table) rows.emplace_back(row.begin(), row.end());
  return rows;
}

CalendarTime at(std::size_t record) {
  return {2013, 5, 1, 10, static_cast<int>(record) * 30 % 60, 5};
}

// Which column a byte of a record tells, as a hexadecimal digit; "d" the date, "-" nothing.
struct Log {
  const char* name;
  std::string columns;
  std::string (*record)(std::size_t);
  Rows (*decode)(const std::string& records);
};
const Log kLogs[] = {{"events", "6dddddd7", [](std::size_t i) { return eventRecord(4, at(i), 90); },
                      [](const std::string& all) {
                        return rowsOf(*decodeEventFrame(eventFrame(all, kRecords), 120, kTwoEast));
                      }},
                     {"history", "ddddddBBA9887766", [](std::size_t i) { return historyRecord(at(i)); },
                      [](const std::string& all) {
                        return rowsOf(*decodeHistoryFrame(historyFrame(all, kRecords), 120, kTwoEast));
                      }},
                     {"chart", "1122334445556-778888", [](std::size_t) { return chartSample(); },
                      [](const std::string& all) {
                        return rowsOf(decodeChartMemory(chartMark("STR", at(0)) + all + "END", kTwoEast));
                      }}};

TEST(FlippedBits, SpoilTheirFieldAlone) {
  for (const Log& log : kLogs) {
    std::string records;
    for (std::size_t i = 0; i < kRecords; ++i) records += log.record(i);
    const Rows whole = log.decode(records);
    for (std::size_t byte = 0; byte < log.columns.size(); ++byte) {
      for (int bit = 0; bit < 8; ++bit) {
        SCOPED_TRACE(std::string(log.name) + " byte " + std::to_string(byte) + " bit " + std::to_string(bit));
        std::string flipped = records;
        flipped[kHit * log.columns.size() + byte] ^= static_cast<char>(1 << bit);
        const Rows rows = log.decode(flipped);
        ASSERT_EQ(rows.size(), whole.size());
        const char field = log.columns[byte];
        for (std::size_t r = 0; r < rows.size(); ++r) {
          for (std::size_t c = 0; c < rows[r].size(); ++c) {
            const bool date = field == 'd' && r == kHit && c < 6;
            const bool span = field == 'd' && (r == kHit || r + 1 == kHit) && (c == 6 || c == 8);  // averages
            const bool own = r == kHit && "0123456789AB"[c] == field;
            EXPECT_TRUE(date || span || own || rows[r][c] == whole[r][c]) << r << " " << c;
          }
        }
      }
    }
  }
}

}  // namespace
}  // namespace zephon
