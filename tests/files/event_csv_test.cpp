#include "files/event_csv.h"

#include <gtest/gtest.h>

#include "support/bench.h"
#include "text/windows1252.h"

namespace zephon {
namespace {

using namespace testing_support;

const std::vector<std::string> kDict = englishDictionary();
const FileStamp kStamp = {{2013, 5, 31, 14, 2, 7}, "LAB,ROOM 1", "1.KD1", "01.A2.FF", 240, 0};
const LogTable<8> kEvents = {{13, 31, 5, 14, 2, 7, 8, 133},
                             {13, 1, 6, 0, 0, 0, 1, 0},
                             {13, 2, 6, 9, 8, 7, 136, 0},
                             {13, 2, 6, 9, 8, 7, 4, 204.53333333333333}};
const std::string kHead =
    "05/31/2013 14:02:07\r\nID: LAB,ROOM 1\r\nFirmware Version: 1.KD1\r\nSoftware Version: 4.4\r\n"
    "Chip ID: 01.A2.FF\r\nVoltage Rating: 240\r\nTime Stamped Log\r\nDate,Time,Event,Magnitude\r\n";
const std::string kRows =
    "05/31/13,14:02:07,Over Voltage,133\r\n06/01/13,00:00:00,Power Outage,\r\n"
    "06/02/13,09:08:07,End of Over Voltage,\r\n06/02/13,09:08:07,Under Voltage,204.53333333333333\r\n";

std::string replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
    text.replace(at, from.size(), to);
  return text;
}

TEST(EventCsv, writesAndReadsItsFile) {
  EXPECT_EQ(eventCsv(kStamp, kEvents, kDict), kHead + kRows);
  const EventCsvReading reading = readEventCsv(kHead + kRows, kDict);
  ASSERT_TRUE(reading) << faultText(*reading.fault);
  EXPECT_EQ(reading.table, kEvents);
  EXPECT_EQ(reading.identity, (FileIdentity{"LAB,ROOM 1", "1.KD1", "01.A2.FF", 240, false}));
  EXPECT_EQ(reading.unknownEvents, 0u);
  EXPECT_TRUE(readEventCsv(kHead, kDict).table.empty());
  EXPECT_TRUE(readEventCsv(kHead, kDict));
}

TEST(EventCsv, readsWhatOtherProgramsMakeOfIt) {
  const std::string file = kHead + kRows;
  const std::string filled =
      replaced(replaced(file, "4.4\r\n", "4.4,,,\r\n"), "LAB,ROOM 1\r\n", "LAB ROOM 1,,,\r\n");
  const std::string semicolons = kHead.substr(0, kHead.find("Date,")) + "Date;Time;Event;Magnitude\r\n" +
                                 replaced(replaced(kRows, ",", ";"), "204.53", "204,53");
  const std::string sameFiles[] = {
      replaced(file, "\r\n", "\n"),
      "\xEF\xBB\xBF" + file,
      file + "\r\n,,,\r\n  \n",
      file.substr(0, file.size() - 2),
      filled,
      semicolons,
      replaced(semicolons, ";", "\t"),
      replaced(file, "204.53333333333333", "\"204,53333333333333\""),
      replaced(file, "204.53", "204,53").replace(file.find(",133"), 4, ",133,0"),
      replaced(replaced(file, "Power Outage,", "Power Outage"), "/13,", "/2013,"),
      replaced(file, "Over Voltage,133", "\"Over Voltage\",\"133\""),
      replaced(replaced(file, "05/31/13", "5/31/13"), "09:08:07", "9:8:7")};
  for (const std::string& same : sameFiles) {
    const EventCsvReading reading = readEventCsv(same, kDict);
    ASSERT_TRUE(reading) << faultText(*reading.fault) << '\n' << same;
    EXPECT_EQ(reading.table, kEvents) << same;
    EXPECT_EQ(reading.identity.chipID, "01.A2.FF");
    EXPECT_EQ(reading.identity.nominalVolts, 240);
  }
  EXPECT_EQ(readEventCsv(filled, kDict).identity.userID, "LAB ROOM 1");
}

TEST(EventCsv, goesRoundInEveryLanguage) {
  auto dict = kDict;
  dict[61] = "Überspannung, \"kurz\"";  // comma and quotes
  dict[62] = "Zanik napięcia";          // a letter that the code page lacks
  dict[145] = "Ereignisprotokoll €";
  FileStamp stamp = kStamp;
  stamp.userID = "Z\xC3\xA4hler 1";
  const std::string file = eventCsv(stamp, kEvents, dict);
  EXPECT_NE(file.find("\"\xDC"
                      "berspannung, \"\"kurz\"\"\",133\r\n"),
            std::string::npos);
  EXPECT_EQ(readEventCsv(file, dict).table, kEvents);
  EXPECT_EQ(readEventCsv(file, dict).identity.userID, stamp.userID);
  EXPECT_EQ(readEventCsv("\xEF\xBB\xBF" + fromWindows1252(file), dict).table, kEvents);
  const EventCsvReading foreign = readEventCsv(file, kDict);
  ASSERT_TRUE(foreign);
  EXPECT_EQ(foreign.unknownEvents, 2u);
  EXPECT_EQ(foreign.table[0], (std::array<double, 8>{13, 31, 5, 14, 2, 7, 0, 133}));
}

TEST(EventCsv, namesTheLineAtFault) {
  const std::pair<std::string, std::size_t> rows[] = {
      {"", 1},
      {kHead.substr(0, 30), 3},
      {replaced(kHead, "240", "high"), 6},
      {replaced(kHead, "Time Stamped Log", "Historical Log"), 7},
      {kHead + kRows + "\r\n" + kRows, 13},
      {kHead + std::string(100, ',') + "x\r\n", 9}};
  for (const auto& [text, line] : rows) {
    const EventCsvReading reading = readEventCsv(text, kDict);
    ASSERT_TRUE(reading.fault) << text;
    EXPECT_EQ(reading.fault->line, line) << text << faultText(*reading.fault);
    EXPECT_TRUE(reading.table.empty() && reading.identity == FileIdentity());
  }
  for (const char* row :
       {"13/31/13,14:02:07,Surge,", "05/31,14:02:07,Surge,", "05/31/13,14:02,Surge,",
        "05/31/13,24:00:00,Surge,", "05/31/13,14:02:07,Surge,x", "05/31/13,14:02:07,Surge,\"1,234\"",
        "05/31/13,14:02:07,Surge,\"1", "05/31/13,14:02:07", "05/31/13,14:02:07,14:32:07,1,2,3,4,5,6"}) {
    const auto fault = readEventCsv(kHead + row + "\r\n", kDict).fault;
    EXPECT_TRUE(fault && fault->line == 9u) << row;
  }
  EXPECT_EQ(faultText(*readEventCsv(kHead + "x\r\n", kDict).fault),
            "line 9: expected date, time, event and magnitude");
  EXPECT_EQ(faultText(FileFault{{}, 7, "more"}), "byte 7: expected more");
}

}  // namespace
}  // namespace zephon
