#include <gtest/gtest.h>

#include "files/chart_csv.h"
#include "files/event_csv.h"
#include "files/fault_text.h"
#include "files/history_csv.h"
#include "files/scope_csv.h"
#include "support/bench.h"
#include "text/windows1252.h"

namespace zephon {
namespace {

using namespace testing_support;

const std::vector<std::string> kDict = englishDictionary();
const FileStamp kStamp = {{2013, 5, 31, 14, 2, 7}, "ABCDEFGHIJ", "1.KD1", "01.A2.FF", 120, 0};

std::string replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
    text.replace(at, from.size(), to);
  return text;
}

std::string head(const std::string& title, const std::string& names, const std::string& id = "ABCDEFGHIJ",
                 const std::string& rating = "120") {
  return "05/31/2013 14:02:07\r\nID: " + id + "\r\nFirmware Version: 1.KD1\r\nSoftware Version: 4.4\r\n" +
         "Chip ID: 01.A2.FF\r\nVoltage Rating: " + rating + "\r\n" + title + "\r\n" + names + "\r\n";
}

const FileStamp kLab = {{2013, 5, 31, 14, 2, 7}, "LAB,ROOM 1", "1.KD1", "01.A2.FF", 240, 0};
const LogTable<8> kEvents = {{13, 31, 5, 14, 2, 7, 8, 133},
                             {13, 1, 6, 0, 0, 0, 1, 0},
                             {13, 2, 6, 9, 8, 7, 136, 0},
                             {13, 2, 6, 9, 8, 7, 4, 204.53333333333333}};
const std::string kEventHead = head("Time Stamped Log", "Date,Time,Event,Magnitude", "LAB,ROOM 1", "240");
const std::string kEventRows =
    "05/31/13,14:02:07,Over Voltage,133\r\n06/01/13,00:00:00,Power Outage,\r\n"
    "06/02/13,09:08:07,End of Over Voltage,\r\n06/02/13,09:08:07,Under Voltage,204.53333333333333\r\n";

TEST(EventCsv, writesAndReadsItsFile) {
  EXPECT_EQ(eventCsv(kLab, kEvents, kDict), kEventHead + kEventRows);
  const EventCsvReading reading = readEventCsv(kEventHead + kEventRows, kDict);
  ASSERT_TRUE(reading) << faultText(*reading.fault, kDict);
  EXPECT_EQ(reading.table, kEvents);
  EXPECT_EQ(reading.identity, (FileIdentity{"LAB,ROOM 1", "1.KD1", "01.A2.FF", 240, false}));
  EXPECT_EQ(reading.unknownEvents, 0u);
}

TEST(EventCsv, readsWhatOtherProgramsMakeOfIt) {
  const std::string file = kEventHead + kEventRows;
  const std::string filled =
      replaced(replaced(file, "4.4\r\n", "4.4,,,\r\n"), "LAB,ROOM 1\r\n", "LAB ROOM 1,,,\r\n");
  const std::string semicolons = kEventHead.substr(0, kEventHead.find("Date,")) +
                                 "Date;Time;Event;Magnitude\r\n" +
                                 replaced(replaced(kEventRows, ",", ";"), "204.53", "204,53");
  const std::string sameFiles[] = {
      replaced(file, "\r\n", "\n"),
      "\xEF\xBB\xBF" + file,
      file + "\r\n,,,\r\n  \n",
      filled,
      semicolons,
      replaced(semicolons, ";", "\t"),
      replaced(file, "204.53333333333333", "\"204,53333333333333\""),
      replaced(file, "204.53", "204,53").replace(file.find(",133"), 4, ",133,0"),
      replaced(replaced(file, "Power Outage,", "Power Outage"), "/13,", "/2013,"),
      replaced(replaced(file, "05/31/13", "5/31/13"), "09:08:07", "9:8:7")};
  for (const std::string& same : sameFiles) {
    const EventCsvReading reading = readEventCsv(same, kDict);
    ASSERT_TRUE(reading) << faultText(*reading.fault, kDict) << '\n' << same;
    EXPECT_EQ(reading.table, kEvents) << same;
    EXPECT_EQ(reading.identity.nominalVolts, 240);
  }
  EXPECT_EQ(readEventCsv(filled, kDict).identity.userID, "LAB ROOM 1");
  for (const auto& [rating, volts] :
       {std::pair("240.0", 240), {"200", 240}, {"199", 120}, {"120 V", 120}, {"", 120}})
    EXPECT_EQ(readEventCsv(replaced(file, ": 240", std::string(": ") + rating), kDict).identity.nominalVolts,
              volts);
}

TEST(EventCsv, goesRoundInEveryLanguage) {
  auto dict = kDict;
  dict[61] = "Überspannung, \"kurz\"";  // comma and quotes
  dict[62] = "Zanik napięcia";          // a letter that the code page lacks
  dict[145] = "Ereignisprotokoll €";
  FileStamp stamp = kLab;
  stamp.userID = "Z\xC3\xA4hler 1";
  const std::string file = eventCsv(stamp, kEvents, dict);
  EXPECT_NE(file.find(std::string("\"\xDC") + "berspannung, \"\"kurz\"\"\",133\r\n"), std::string::npos);
  EXPECT_EQ(readEventCsv(file, dict).table, kEvents);
  EXPECT_EQ(readEventCsv(file, dict).identity.userID, stamp.userID);
  EXPECT_EQ(readEventCsv("\xEF\xBB\xBF" + fromWindows1252(file), dict).table, kEvents);
  EXPECT_EQ(readEventCsv(file, kDict).unknownEvents, 2u);
}

TEST(EventCsv, namesTheLineAtFault) {
  const std::pair<std::string, std::size_t> rows[] = {
      {"", 1},
      {replaced(kEventHead, "Time Stamped Log", "Historical Log"), 7},
      {kEventHead + kEventRows + "\r\n" + kEventRows, 13},
      {kEventHead + std::string(100, ',') + "x\r\n", 9}};
  for (const auto& [text, line] : rows) {
    const EventCsvReading reading = readEventCsv(text, kDict);
    ASSERT_TRUE(reading.fault) << text;
    EXPECT_EQ(reading.fault->line, line) << text << faultText(*reading.fault, kDict);
    EXPECT_TRUE(reading.table.empty() && reading.identity == FileIdentity());
  }
  for (const char* row :
       {"13/31/13,14:02:07,Surge,", "05/31,14:02:07,Surge,", "05/31/13,14:02,Surge,",
        "05/31/13,24:00:00,Surge,", "05/31/13,14:02:07,Surge,x", "05/31/13,14:02:07,Surge,\"1,234\"",
        "05/31/13,14:02:07,Surge,\"1", "05/31/13,14:02:07", "05/31/13,14:02:07,14:32:07,1,2,3,4,5,6"}) {
    const auto fault = readEventCsv(kEventHead + row + "\r\n", kDict).fault;
    EXPECT_TRUE(fault && fault->line == 9u) << row;
  }
  EXPECT_EQ(faultText(FileFault{{}, 7, words::kTextThere, "ID:"}, kDict),
            "byte 7: expected the text \"ID:\"");
}

const std::string kHistoryHead = head("Historical Log",
                                      "Date,End Time,Start Time,Average Power,Maximum Power,Average Voltage,"
                                      "Maximum Voltage,Minimum Voltage,Maximum Current");
const LogTable<12> kHistory = {{13, 31, 5, 23, 0, 0, 118.25, -4, 119.5, 125, 112.07, 1.5},
                               {13, 31, 5, 23, 30, 0, 0, 262140, 120, 0.1, 112, 0.004},
                               {13, 1, 6, 0, 0, 0}};
const std::string kHistoryRows =
    "05/31/13,23:30:00,23:00:00,118.25,-4,119.5,125,112.07,1.5\r\n"
    "05/31/13,00:00:00,23:30:00,0,262140,120,0.1,112,0.004\r\n";

TEST(HistoryCsv, writesAndReadsItsFile) {
  EXPECT_EQ(historyCsv(kStamp, kHistory, kDict), kHistoryHead + kHistoryRows);
  const auto reading = readHistoryCsv(kHistoryHead + kHistoryRows, kDict);
  ASSERT_TRUE(reading) << faultText(*reading.fault, kDict);
  LogTable<12> expected = kHistory;
  expected.back() = {13, 31, 5, 0, 0, 0};  // a half hour that ends at midnight closes on the day it began
  EXPECT_EQ(reading.table, expected);
  EXPECT_EQ(reading.identity, (FileIdentity{"ABCDEFGHIJ", "1.KD1", "01.A2.FF", 120, false}));
}

TEST(HistoryCsv, readsEarlierAndForeignForms) {
  const std::string names = "Datum;Ende;Beginn;a;b;c;d;e;f\n";
  const std::string foreign = replaced(replaced(kHistoryRows, ",", ";"), ".", ",");
  const std::string torn = "05/31/13,23:30:00,23:00:00,118,25,-4,0,119,5,125,0,112,07,1,5\n";
  const FileIdentity early{"MYDEVICE12", "n.nnn", "FF.FF.FF", 120, false};
  const FileIdentity own{"ABCDEFGHIJ", "1.KD1", "01.A2.FF", 120, false};
  const FileIdentity second{"TessaraPCS", ".KD1", "01.A2.FF", 120, true};
  const FileIdentity high{"ABCDEFGHIJ", "1.KD1", "01.A2.FF", 240, false};
  const std::string title = "MYDEVICE12 Historical Data\r\n";
  const std::string otherHead =
      replaced(kHistoryHead, "ABCDEFGHIJ", "TessaraPCS").substr(0, kHistoryHead.rfind("Date")) + names;
  const std::tuple<std::string, std::size_t, FileIdentity> files[] = {
      {title + "05/31/13,...\r\n" + replaced(kHistoryRows, "/", "-"), 2, early},
      {otherHead + foreign, 2, second},
      {kHistoryHead + torn, 1, own},
      {kHistoryHead + replaced(kHistoryRows, "119.5", "140"), 2, high}};
  for (const auto& [file, rows, identity] : files) {
    SCOPED_TRACE(file);
    const auto reading = readHistoryCsv(file, kDict);
    ASSERT_TRUE(reading) << faultText(*reading.fault, kDict);
    EXPECT_EQ(reading.identity, identity);
    ASSERT_EQ(reading.table.size(), rows + 1);
    EXPECT_TRUE(reading.table[0][6] == 118.25 && reading.table[0][11] == 1.5);
  }
}

TEST(HistoryCsv, namesTheLineAtFault) {
  const auto with = [](const std::string& from, const std::string& to) {
    return kHistoryHead + replaced(kHistoryRows, from, to);
  };
  const std::pair<std::string, std::size_t> files[] = {
      {"MYDEVICE12 Historical Data", 2}, {with("23:30:00,0", "23:61:00,0"), 10},
      {with("112.07,1.5", "112.07"), 9}, {with("0.004", "0.004,1"), 10},
      {with("0.004", "inf"), 10},        {replaced(kHistoryHead, "Historical Log", "Chart Data"), 7}};
  for (const auto& [file, line] : files) {
    const auto reading = readHistoryCsv(file, kDict);
    ASSERT_TRUE(reading.fault) << file;
    EXPECT_EQ(reading.fault->line, line) << file;
  }
}

const std::string kChartNames =
    "Date,Time,Line Voltage,Load,Current,Load,Power,N-G Voltage,Frequency,Power Factor,"
    "Crest Factor,Energy Usage";
const LogTable<9> kChart = {{41425.5, 120.5, 1.5, -4, 0.25, 60, -0.5, 1.414, 232},
                            {41425.5 + 10.2 / 86400, 119.5, 0, 0, 12.3456, 5, 0, 1, 0.00004}};

TEST(ChartCsv, writesAndReadsItsFile) {
  const std::string rows =
      "05/31/2013,12:00:00,120.50,1.5000,-4.0,0.250,60.00,-0.500,1.414,232.0000\r\n"
      "05/31/2013,12:00:10,119.50,0.0000,0.0,12.346,05.00,0.000,1.000,0.0000\r\n";
  EXPECT_EQ(chartCsv(kStamp, kChart, FileKind::InternalChart, kDict),
            head("Internal Chart Log", kChartNames) + rows);
  const std::string file = chartCsv(kStamp, kChart, FileKind::LiveChart, kDict);
  EXPECT_EQ(file, head("Chart Data", kChartNames) + rows);
  const LogTable<9> expected = {kChart[0], {41425.5 + 10 / 86400.0, 119.5, 0, 0, 12.346, 5, 0, 1, 0}};
  const std::string ten = replaced(file, "Load,Current,Load,Power", "Load Current,Load Power");
  const std::string torn = head("Chart Data", kChartNames) + replaced(rows, ".", ",");
  for (const std::string& same :
       {file, ten, torn, replaced(file, "/2013,", "/13,"), "MYDEVICE12 Chart\r\n" + rows,
        "MYDEVICE12 Chart\r\n\r\n" + rows, head("Chart Data", "") + rows,
        replaced(file, "05/31/2013,", "05-31-2013,")}) {
    const auto reading = readChartCsv(same, kDict);
    ASSERT_TRUE(reading) << faultText(*reading.fault, kDict) << same;
    ASSERT_EQ(reading.table.size(), 2u);
    EXPECT_EQ(reading.table[0], expected[0]) << same;
    EXPECT_NEAR(reading.table[1][0], expected[1][0], 1e-9);
    EXPECT_TRUE(std::equal(expected[1].begin() + 1, expected[1].end(), reading.table[1].begin() + 1)) << same;
  }
}

TEST(ChartCsv, carriesLessOfTheSecondLine) {
  const std::string date = "05/31/2013,12:00:00,", date2 = "05/31/2013,12:00:10,";
  const std::string both =
      "Date,Time,Line Voltage,N-G Voltage\r\n" + date + "121,0\r\n" + date2 + "120,12\r\n";
  const std::string one = "Date,Time,Line Voltage\r\n" + date + "121\r\n" + date2 + "120\r\n";
  const std::tuple<const char*, int, std::string, double> cases[] = {
      {"2.00", 120, both, 12}, {"1*14", 120, one, 0}, {"2.01", 240, one, 0}};
  for (const auto& [firmware, rating, rows, neutralVolts] : cases) {
    const FileStamp stamp = {{2013, 5, 31, 14, 2, 7}, "TessaraPCS", firmware, "01.A2.FF", rating, 1};
    const std::string file = chartCsv(stamp, kChart, FileKind::LiveChart, kDict);
    EXPECT_EQ(file.substr(file.find("Date,")), rows);
    const auto reading = readChartCsv(file, kDict);
    ASSERT_TRUE(reading) << faultText(*reading.fault, kDict);
    const std::array<double, 9> second = {reading.table[1][0], 120, 0, 0, neutralVolts};
    EXPECT_EQ(reading.table[1], second) << firmware;
    EXPECT_TRUE(reading.identity.secondLine && reading.identity.firmwareVersion == firmware);
    EXPECT_NE(chartCsv(stamp, kChart, FileKind::InternalChart, kDict).find(kChartNames), std::string::npos);
  }
  const std::pair<std::string, std::size_t> torn[] = {{"Date,Time,Line Voltage", 9}, {"Date,Time", 8}};
  for (const auto& [names, line] : torn) {
    const auto fault =
        readChartCsv(head("Chart Data", names, "TessaraPCS") + date + "120,5\r\n", kDict).fault;
    EXPECT_TRUE(fault && fault->line == line);
  }
}

TEST(ScopeCsv, writesARowASample) {
  const std::vector<double> volts = {169.5, -170}, amperes = {0.25, 1.0 / 3};
  ScopeCapture capture{.mode = 1, .volts = volts, .samplePeriod = 0.00025};
  const std::string start = head("Scope Data", "Time,Voltage,Current,Power");
  EXPECT_EQ(scopeCsv(kStamp, capture, kDict), start + "0,169.5,,\r\n0.00025,-170,,\r\n");
  capture.amperes = capture.watts = amperes;
  EXPECT_EQ(scopeCsv(kStamp, capture, kDict),
            start + "0,169.5,0.25,0.25\r\n0.00025,-170,0.3333333333333333,0.3333333333333333\r\n");
}

}  // namespace
}  // namespace zephon
