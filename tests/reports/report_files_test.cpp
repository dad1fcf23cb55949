#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <fstream>

#include "platform/read_file.h"
#include "reports/event_report.h"
#include "reports/expert_report.h"
#include "reports/setup_report.h"
#include "support/temp_folder.h"
#include "text/strings.h"

namespace zephon {
namespace {

std::vector<std::string> dictionary(const std::string& language) {
  std::ifstream file(std::string(ZEPHON_RESOURCES) + '/' + language + ".dictionary");
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

std::string outputOf(const std::string& command) {
  FILE* pipe = ::popen(command.c_str(), "r");
  std::string output;
  for (int c = pipe ? std::fgetc(pipe) : EOF; c != EOF; c = std::fgetc(pipe)) output += static_cast<char>(c);
  if (!pipe || ::pclose(pipe) != 0) ADD_FAILURE() << command;
  return output;
}

// What a reader of the file sees, page by page, with one blank for a row of them.
std::vector<std::string> pagesOf(const std::string& path) {
  auto pages = split(outputOf("pdftotext -layout '" + path + "' - | tr -s ' '"), '\f');
  pages.pop_back();  // behind the last page's end
  return pages;
}

bool holds(const std::string& page, const std::string& text) {
  return page.find(text) != std::string::npos;
}

class ReportFiles : public testing::Test {
 protected:
  PdfHost host() {
    PdfHost host;
    host.programFolder = ZEPHON_RESOURCES;
    host.now = [] { return CalendarTime{2026, 5, 31, 14, 2, 7}; };
    host.message = [this](const std::string&, const std::string& text) { told.push_back(text); };
    return host;
  }
  ReportHead head(int modelLine, int volts) const {
    return {"Expert Analysis", "05/01/2013 To 05/31/2013", modelLine, volts, "Pump house", "1.KD1",
            "4C.5A.17"};
  }

  TempFolder folder;
  std::string path = folder / "report.pdf";
  std::vector<std::string> told;
  std::vector<std::string> english = dictionary("EN");
};

TEST_F(ReportFiles, ExpertReportSaysWhatWasFoundUnderAHeadThatEachPageRepeats) {
  const std::vector<std::string> findings(61, "Surges were recorded at 12 \u00B0C.");
  ASSERT_TRUE(writeExpertReport(path, host(), head(0, 120), findings, english));
  const auto pages = pagesOf(path);
  ASSERT_EQ(pages.size(), 2u);
  for (const std::string& page : pages)
    for (const char* fact :
         {"Orvantis PCS Expert Analysis", "05/01/2013 To 05/31/2013", "\u2022 ID: Pump house"})
      EXPECT_TRUE(holds(page, fact)) << fact << page;
  EXPECT_TRUE(holds(pages[0], "60. Surges were recorded at 12 \u00B0C.") && !holds(pages[0], "61. "));
  EXPECT_TRUE(holds(pages[1], "61. Surges") && holds(pages[1], "2 of 2"));
}

// What is drawn, in its order and at its place: 842 less the distance from the top.
TEST_F(ReportFiles, ThePageFrameStandsWhereReadersKnowIt) {
  const auto text = [](const char* place, const std::string& what) {
    return std::string(place) + " Td /F" + what + ") Tj";
  };
  const std::tuple<int, int, std::string, std::string, std::string> cases[] = {
      {0, 120, "PDF_titleRV.jpg", "Orvantis PCS", "120V "},
      {1, 240, "PDF_titleTR.jpg", "Tessara PCS", "208/240V "}};
  for (const auto& [modelLine, volts, picture, product, rating] : cases) {
    ASSERT_TRUE(writeExpertReport(path, host(), head(modelLine, volts), {}, english));
    const std::string file = folder.get("report.pdf");
    const std::string marks[] = {
        "/Title (QLT Zephon Orvantis PCS Rating: " + rating + ")",
        "15.00 792.00 m\r\n565.00 792.00 l",
        "q 20.00 0 0 30.00 545.00 794.00 cm",
        text("15.00 772.00", "6 12 Tf (" + product + " Expert Analysis"),
        text("15.00 752.00", "6 10 Tf (\x95 Acquisition Period: "),
        text("15.00 737.00", "6 10 Tf (\x95 ID: "),
        text("45.00 737.00", "5 10 Tf (Pump house"),
        text("125.00 722.00", "5 10 Tf (1.KD1"),
        text("140.00 692.00", "5 10 Tf (" + product + " , " + rating),
        "15.00 667.00 Td /F5 8 Tf (Before taking",
        "15.00 32.00 m\r\n565.00 32.00 l",
        "15.00 22.00 Td /F5 7 Tf (\xA9",
        text("200.00 22.00", "5 7 Tf (https://www.zephon.example"),
        "22.00 Td /F5 7 Tf (1 of 1",
        "15.00 647.00 Td /F5 8 Tf (01. Analysis of the acquired data shows no indication",
        std::string(readFile(ZEPHON_RESOURCES "/Fonts/" + picture, 1 << 20).bytes),
        "/URI (https://www.zephon.example)",
    };
    std::size_t at = 0;
    for (const std::string& mark : marks) {
      at = file.find(mark, at);
      ASSERT_NE(at, std::string::npos) << mark.substr(0, 200);
    }
  }
  // Labels that are long for their places, if not too long, move the values.
  for (const auto& [key, length] : {std::pair(22, 17), {23, 8}, {167, 24}})
    english[static_cast<std::size_t>(key)] = std::string(static_cast<std::size_t>(length), 'i');
  ASSERT_TRUE(writeExpertReport(path, host(), head(0, 120), {}, english));
  for (const char* place : {"BT 140.00 722.00 Td", "BT 90.00 707.00 Td", "BT 155.00 692.00 Td"})
    EXPECT_TRUE(holds(folder.get("report.pdf"), place)) << place;
}

// Every sentence of every language, each at its longest, stays between the margins.
TEST_F(ReportFiles, FindingsOfEveryLanguageStayOnThePage) {
  for (const char* language : {"EN", "DE", "FR", "ES"}) {
    const auto dict = dictionary(language);
    ASSERT_GE(dict.size(), 271u) << language;
    std::vector<std::string> findings(dict.begin() + 215, dict.begin() + 271);
    findings.emplace_back(130, 'o');  // wider than any sentence
    ASSERT_TRUE(writeExpertReport(path, host(), head(0, 120), findings, dict));
    const double right = std::stod(
        outputOf("pdftotext -bbox '" + path + "' - | grep -o 'xMax=.[0-9]*' | cut -c7- | sort -n | tail -1"));
    EXPECT_TRUE(right > 300 && right < 595 - 29) << language << right;
  }
}

TEST_F(ReportFiles, LogReportHasEveryRowUnderAHeadThatEachPageRepeats) {
  LogTable<8> events;
  for (int i = 0; i < 512; ++i)
    events.push_back({13, 1.0 + i % 28, 5, std::floor(i / 60.0), i % 60 * 1.0, 7, i % 2 ? 1.0 : 16.0, 132});
  events[3] = {13, 4, 5, 0, 3, 7, 64, 21};
  ASSERT_TRUE(writeEventReport(path, host(), head(0, 120), events, english));
  const auto pages = pagesOf(path);
  ASSERT_EQ(pages.size(), 9u);
  for (const char* part : {"Event Summary", "21 A", "132 V", "110 %"})
    EXPECT_TRUE(holds(pages[0], part)) << part;
  std::size_t rows = 0;
  for (const std::string& page : pages) {
    EXPECT_TRUE(holds(page, "Magnitude"));
    for (std::size_t at = page.find("/2013 "); at != std::string::npos; at = page.find("/2013 ", at + 1))
      rows += page.compare(at + 6, 2, "To") != 0;
  }
  EXPECT_EQ(rows, 512u);
}

TEST_F(ReportFiles, FailuresAreToldAndLeaveTheOldFile) {
  folder.put("report.pdf", "old");
  PdfHost bare = host();
  bare.programFolder = folder / "nowhere";
  EXPECT_TRUE(writeExpertReport(folder / "bare.pdf", bare, head(0, 120), {}, english));
  EXPECT_FALSE(std::exchange(told, {}).empty());  // no metrics, no picture
  EXPECT_FALSE(writeExpertReport(folder / "none/report.pdf", host(), head(0, 120), {}, english));
  EXPECT_FALSE(told.empty());
  EXPECT_EQ(folder.get("report.pdf"), "old");
}

TEST(SetupReport, ListsWhatTheDeviceHas) {
  const auto english = dictionary("EN");
  const FileStamp stamp{{2026, 5, 31, 14, 2, 7}, "Pump house", "1.KD1", "4C.5A.17", 120, 0};
  const DeviceSettings settings{Limits{90, 100, 105, 125, 130, 140}, 15, {}, {}, true, {}, false, {}};
  EXPECT_EQ(setupReport(stamp, settings, english),
            "Orvantis PCS Setup Report\r\n\r\nID: Pump house\r\nFirmware Version: 1.KD1\r\n"
            "Software Version: 4.4\r\nChip ID: 4C.5A.17\r\nVoltage Rating: 120 V\r\n"
            "Over Voltage Shutdown: 140 V\r\nOver Voltage Record: 130 V\r\nOver Voltage Restore: 125 V\r\n"
            "Under Voltage Restore: 105 V\r\nUnder Voltage Record: 100 V\r\nUnder Voltage Shutdown: 90 V\r\n"
            "Overload Record: 15 A\r\nGround Detection Enabled: True\r\nPower Fail Hold Enabled: False\r\n");
  DeviceSettings wiring;
  wiring.centerTap = true;
  const std::string second = setupReport({{}, "TessaraPCS", "1*14", "01.02.03", 240, 1}, wiring, english);
  EXPECT_TRUE(second.starts_with("Tessara PCS Setup Report\r\n"));
  EXPECT_TRUE(second.ends_with("Voltage Rating: 240 V\r\nSupply Wiring: 120/240 Center Tap\r\n"));
}

}  // namespace
}  // namespace zephon
