#include "files/chart_journal.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "files/chart_csv.h"
#include "files/fault_text.h"
#include "support/bench.h"
#include "support/temp_folder.h"

namespace zephon {
namespace {

namespace fs = std::filesystem;

const FileStamp kStamp = {{2024, 3, 5, 9, 30, 0}, "ZEPHON SIM", "1.KD1", "4C.5A.17", 120, 0};
const FileStamp kOther = {{2024, 3, 5, 9, 31, 0}, "TessaraPCS", "2.00", "4C.5A.18", 120, 1};

LogTable<9> rowsUpTo(std::size_t count) {
  LogTable<9> rows;
  for (std::size_t i = 0; i < count; ++i)
    rows.push_back({45356 + static_cast<double>(i) / 86400, 110.25 + static_cast<double>(i), 1.5, 120, 0.25,
                    60, 0.5, 1.414, 7});
  return rows;
}

struct Journal : ::testing::Test {
  SaveResult keep(std::size_t rows, const FileStamp& stamp = kStamp) {
    return keepJournal(journal, folder / "", stamp, rowsUpTo(rows), dict);
  }
  std::vector<std::string> names() const {
    std::vector<std::string> all;
    for (const auto& one : fs::directory_iterator(folder / "")) all.push_back(one.path().filename().string());
    std::sort(all.begin(), all.end());
    return all;
  }
  // One journal stands, with the rows from the first on.
  void expectTaken(std::size_t first, std::size_t end) const {
    const auto charts = takeOverJournals(folder / "");
    ASSERT_EQ(charts.size(), 1u);
    expectChart(charts[0], first, end);
  }
  void expectChart(const std::string& path, std::size_t first, std::size_t end) const {
    const auto reading = readChartCsv(folder.get(fs::path(path).filename().string()), dict);
    ASSERT_TRUE(reading) << faultText(*reading.fault, {});
    ASSERT_EQ(reading.table.size(), end - first);
    for (std::size_t i = first; i < end; ++i)
      EXPECT_EQ(reading.table[i - first][1], 110.25 + static_cast<double>(i));
  }

  const std::vector<std::string> dict = testing_support::englishDictionary();
  TempFolder folder;
  ChartJournal journal;
};

TEST_F(Journal, HasEachRowAtOnceInTheFormOfASavedChart) {
  EXPECT_TRUE(keep(0));
  EXPECT_TRUE(names().empty());
  for (std::size_t rows = 1; rows < 5; ++rows) {
    EXPECT_TRUE(keep(rows));
    EXPECT_EQ(folder.get("Chart 2024-03-05 09.30.00.csv.unsaved"),
              chartCsv(kStamp, rowsUpTo(rows), FileKind::LiveChart, dict));
  }
  endJournal(journal, 4);
  EXPECT_TRUE(keep(4));
  EXPECT_TRUE(names().empty()) << "saved rows are kept no more";
  EXPECT_TRUE(keep(6));
  leaveJournal(journal, 0);
  expectTaken(4, 6);
}

TEST_F(Journal, EachDeviceHasAFileAndASaveEndsThemAll) {
  EXPECT_TRUE(keep(2) && keep(3, kOther) && keep(4, kOther));
  EXPECT_EQ(names().size(), 2u);
  EXPECT_TRUE(takeOverJournals(folder / "").empty()) << "this program still holds both";
  ChartJournal again;
  std::swap(again, journal);
  leaveJournal(again, 0);
  const auto charts = takeOverJournals(folder / "");
  ASSERT_EQ(charts.size(), 2u);
  expectChart(charts[0], 0, 2);
  EXPECT_NE(folder.get("Chart 2024-03-05 09.31.00.csv").find(",112,0\r\n"), std::string::npos);

  EXPECT_TRUE(keep(2) && keep(3, kOther));
  endJournal(journal, 3);
  EXPECT_EQ(names().size(), 2u) << "no file took the place of another";
}

TEST_F(Journal, TakesUpWhatAFailureHasLeftOut) {
  const std::string blocked = folder.put("blocked", "");
  for (std::size_t rows = 1; rows < 4; ++rows)
    EXPECT_FALSE(keepJournal(journal, blocked + "/zephon", kStamp, rowsUpTo(rows), dict));
  fs::remove(blocked);
  EXPECT_TRUE(keep(9'000));
  for (std::size_t rows = 9'001; rows < 9'004; ++rows) EXPECT_TRUE(keep(rows));
  leaveJournal(journal, 0);
  expectTaken(0, 9'003);
}

TEST_F(Journal, IsCutToWholeRowsWhenItIsTakenOver) {
  EXPECT_TRUE(keep(3));
  leaveJournal(journal, 0);
  const std::string whole = folder.get("Chart 2024-03-05 09.30.00.csv.unsaved");
  const std::size_t head = chartCsvHead(kStamp, FileKind::LiveChart, dict).size();
  folder.put("Chart 1.csv.unsaved", whole + "03/05/20");
  folder.put("Chart 2.csv.unsaved", whole.substr(0, head));
  folder.put("Chart 3.csv.unsaved", whole.substr(0, head + 9));
  folder.put("saved.csv", "another's");
  const auto charts = takeOverJournals(folder / "");
  EXPECT_EQ(names(), (std::vector<std::string>{"Chart 1.csv", "Chart 2024-03-05 09.30.00.csv", "saved.csv"}));
  ASSERT_EQ(charts.size(), 2u);
  for (const std::string& chart : charts) expectChart(chart, 0, 3);
  EXPECT_TRUE(takeOverJournals(folder / "").empty()) << "they are told once";
}

TEST_F(Journal, OutlivesAKilledProgram) {
  int told[2];
  ASSERT_EQ(::pipe(told), 0);
  const pid_t child = ::fork();
  if (child == 0) {
    for (std::size_t rows = 1; rows <= 40; ++rows) keep(rows);
    [[maybe_unused]] const auto written = ::write(told[1], "!", 1);
    for (;;) ::pause();
  }
  char byte = 0;
  ASSERT_EQ(::read(told[0], &byte, 1), 1);
  EXPECT_TRUE(takeOverJournals(folder / "").empty()) << "the other program still runs";
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
  expectTaken(0, 40);
  for (const int pipe : told) ::close(pipe);
}

}  // namespace
}  // namespace zephon
