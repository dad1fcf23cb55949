#include "files/dat_file.h"

#include <gtest/gtest.h>

#include "files/fault_text.h"
#include "logs/event_log.h"
#include "logs/history_log.h"
#include "support/bench.h"
#include "support/log_bytes.h"

namespace zephon {
namespace {

using namespace testing_support;

const FileStamp kStamp = {{2013, 5, 31, 14, 2, 7}, "   Z\xC3\xA4hler", "2.00", "01.A2.FF", 240, 1};
constexpr UtcOffset kWest{5 / 24.0};

std::string events() {
  return eventFrame(eventRecord(4, {2013, 5, 1, 10, 0, 0}, 100) + eventRecord(64, {2013, 5, 1, 11, 0, 0}, 31),
                    2);
}

TEST(DatFile, writesItsHeader) {
  const std::string first =
      "05/31/2013 14:02:07\r\nID:    Z\xE4hler\r\nFirmware Version: 2.00\r\nSoftware Version: 4.4\r\n"
      "Chip ID: 01.A2.FF\r\nVoltage Rating: 240\r\n";
  const std::string raw("\0\r\n\xFF", 4);
  EXPECT_EQ(datFile(kStamp, FileKind::Events, raw), first + "Time Stamp\r\n\r\n" + raw + "\r\n");
  const ScopeCapture capture{.mode = 3, .xScale = 0.5, .ch1Scale = 100, .ch2Scale = 4, .ch3Scale = 400};
  EXPECT_EQ(
      datFile(kStamp, FileKind::Scope, raw, &capture),
      first + "Scope\r\nMode: 3\r\nX Scale: 0.5\r\nCH1 Scale: 100\r\nCH2 Scale: 4\r\nCH3 Scale: 400\r\n\r\n" +
          raw + "\r\n");
}

TEST(DatFile, readsBackItsLogs) {
  const std::string file = datFile(kStamp, FileKind::Events, events());  // what is read points into it
  const auto read = readEventDat(file, kWest);
  ASSERT_TRUE(read) << faultText(*read.fault, {});
  EXPECT_EQ(read.table, *decodeEventFrame(events(), 240, kWest));
  EXPECT_EQ(read.raw, events());
  EXPECT_EQ(read.identity, (FileIdentity{"   Zähler", "2.00", "01.A2.FF", 240, false}));
  const std::string frame = historyFrame(historyRecord({2013, 5, 31, 10, 0, 0}), 1);
  const std::string historyFile = datFile(kStamp, FileKind::History, frame);
  const auto history = readHistoryDat(historyFile, kWest);
  ASSERT_TRUE(history) << faultText(*history.fault, {});
  EXPECT_EQ(history.table, *decodeHistoryFrame(frame, 240, kWest));
  EXPECT_EQ(history.raw, frame);
}

// The labels stand in any order and anywhere in the header.
TEST(DatFile, searchesEachLabelFromTheStart) {
  const std::string header =
      "Voltage Rating: 208\r\nChip ID: 12345678\r\nID: 0123456789abc\r\nFirmware Version: 1.KD1x\r\n";
  const std::string file = header + events() + "\r\n";
  const auto read = readEventDat(file, {});
  ASSERT_TRUE(read) << faultText(*read.fault, {});
  EXPECT_EQ(read.identity, (FileIdentity{"12345678", "1.KD1", "12345678", 208, false}));
  EXPECT_EQ(read.table[0][7], 100 * (208 / 120.0));
}

TEST(DatFile, refusesWhatIsNone) {
  const std::string file = datFile(kStamp, FileKind::Events, events());
  const auto without = [&](const std::string& text) {
    return std::string(file).erase(file.find(text), text.size());
  };
  for (const std::string& other :
       {std::string(), file.substr(0, 7999), std::string(9001 - file.size(), ' ') + file,
        file.substr(0, file.size() - 2) + "..", without("Chip ID:"), without("Firmware Version:"),
        without("240"), datFile(kStamp, FileKind::Scope, events())}) {
    const auto read = readEventDat(other, {});
    ASSERT_TRUE(read.fault) << other.substr(0, 200);
    EXPECT_TRUE(read.fault->offset && read.table.empty() && read.raw.empty());
  }
  EXPECT_TRUE(readEventDat(std::string(9000 - file.size(), ' ') + file, {}));
  EXPECT_FALSE(readHistoryDat(file, {}));
  EXPECT_FALSE(readHistoryDat(datFile(kStamp, FileKind::InternalChart, std::string(131072, 'x')), {}));
}

TEST(FileNames, tellKindAndTime) {
  auto dict = englishDictionary();
  const CalendarTime now = {2013, 5, 31, 14, 2, 7};
  EXPECT_EQ(defaultFileName(FileKind::LiveChart, ".csv", dict, now), "Chart Data 05-31-2013 14.02.07.csv");
  dict[30] = "a/b:c";
  EXPECT_TRUE(
      defaultFileName(FileKind::History, ".dat", dict, now).starts_with("a-b-c Historical Log 05-31"));
}

}  // namespace
}  // namespace zephon
