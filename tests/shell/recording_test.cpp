#include <gtest/gtest.h>

#include <cmath>

#include "files/chart_csv.h"
#include "files/fault_text.h"
#include "protocol/day_serial.h"
#include "shell/tool.h"

// The live chart in the whole tool, with outages of the link, held against what the device saw.

namespace zephon {
namespace {

using simulator::FaultKind;
using simulator::Line;
using simulator::makeProfile;
using testing_support::Tool;

constexpr double kSecond = 1 / 86400.0;

// How far a column may be off what a device of the first line has measured.
constexpr double kRounding[] = {0.014, 0.006, 4.1, 0.006, 0.14, 0.02, 0.002, 0.001};

// What the device measured for a row, by column, and when the row was due.
struct Expected {
  std::array<double, 8> values{};
  bool answers = true;
  double from = 0, until = 0;
};

class Hours {
 public:
  explicit Hours(Line line) : tool_(makeProfile(line)), first_(line == Line::Orvantis) {
    tool_.press(tool_.main.frame.ChartBtn);
    measureAnew();
  }

  // Records until so many rows stand.
  void record(std::size_t rows) {
    while (finished() < rows) {
      tool_.run(20);
      if (finished() == expected_.size()) continue;
      ASSERT_EQ(finished(), expected_.size() + 1);
      now_.until = moment();
      expected_.push_back(now_);
      measureAnew();
    }
  }
  // The link is out for so many rows.
  void outage(std::size_t rows) {
    tool_.device.cutLine();
    now_.answers = false;
    record(finished() + rows);
    tool_.device.restoreLine();
    now_.answers = true;
  }
  // Answers fail in part until the link counts as lost; the user comes back after a while.
  void loseLink() {
    tool_.device.addFault({.kind = FaultKind::Silent, .only = first_ ? "g6" : "s"});
    while (tool_.main.pages.chartOn) tool_.run(20);
    ASSERT_EQ(tool_.dialogs.texts().back(), tool_.main.dict[46]);
    ASSERT_EQ(finished(), expected_.size());
    tool_.device.clearFaults();
    tool_.run(300'000);
    now_.from = moment();
    tool_.press(tool_.main.frame.ChartBtn);
  }
  void expectRows() const {
    for (std::size_t i = 0; i < expected_.size() && !::testing::Test::HasFailure(); ++i) {
      SCOPED_TRACE(i);
      expectRow(tool_.main.logs.chartData[i], expected_[i]);
    }
  }
  double moment() const { return dateSerial(tool_.clock.now().local); }
  std::size_t finished() const {
    const std::size_t rows = tool_.main.logs.chartData.size();
    return rows == 0 ? 0 : rows - 1;
  }
  Tool& tool() { return tool_; }

 private:
  // Other values for each row, from the moment at which the one before is finished.
  void measureAnew() {
    const auto k = static_cast<double>(expected_.size());
    auto& v = now_.values;
    v = {105 + std::fmod(k * 1.37, 30),
         std::fmod(k * 0.173, 12),
         std::fmod(k * 11, 1400),
         4 + std::fmod(k * 0.71, 40),
         57 + std::fmod(k, 6),
         -1 + std::fmod(k * 0.11, 2),
         1.3 + std::fmod(k * 0.017, 0.4),
         0};
    tool_.device.hold({v[0], v[1], v[2], v[3], v[4], v[5], {}, v[6]});
    now_.from = moment();
    v[7] = tool_.device.device().kilowattHours();
  }

  void expectRow(const std::array<double, 9>& row, const Expected& e) const {
    EXPECT_GE(row[0], e.from + 0.9 * kSecond);
    EXPECT_LE(row[0], e.until + 1e-9);
    for (std::size_t i = 0; i < e.values.size(); ++i) {
      const bool told = e.answers && (first_ || i == 0 || i == 3);  // the second line has two voltages
      const double off = first_ ? kRounding[i] : 1.5;
      EXPECT_NEAR(row[i + 1], told ? e.values[i] : 0, told ? off : 0) << i;
    }
  }

  Tool tool_;
  bool first_;
  std::vector<Expected> expected_;
  Expected now_;
};

// A tool in the same folders, as it is started after the one before has ended in whatever way.
std::string startedNotice(const std::string& state) {
  testing_support::Bench bench;
  bench.main.around.folders.state = state;
  formLoad(bench.main, "");
  return bench.main.frame.noticeLbl.caption();
}

class LiveChart : public ::testing::TestWithParam<Line> {};

TEST_P(LiveChart, RecordsTwoHoursRowByRowThroughOutagesAndALostLink) {
  Hours hours(GetParam());
  const double begun = hours.moment();
  const std::size_t part = GetParam() == Line::Orvantis ? 1400 : 300;
  hours.record(part);
  hours.outage(1);
  hours.record(2 * part);
  hours.outage(40);
  hours.record(3 * part);
  hours.loseLink();
  hours.record(4 * part);
  hours.outage(3);
  while (hours.moment() < begun + 2 / 24.0) hours.record(hours.finished() + 1);
  hours.expectRows();

  // The rows survive the page, and a save tells the same.
  Tool& tool = hours.tool();
  tool.press(tool.main.frame.ChartBtn);
  tool.dialogs.saveAnswer = tool.settings / "chart.csv";
  tool.press(tool.main.frame.saveBtn);
  const auto saved = readChartCsv(tool.settings.get("chart.csv"), tool.main.dict);
  ASSERT_TRUE(saved) << faultText(*saved.fault, {});
  ASSERT_EQ(saved.table.size(), hours.finished());
  for (std::size_t i = 0; i < saved.table.size(); ++i)
    EXPECT_NEAR(saved.table[i][1], tool.main.logs.chartData[i][1], 0.006);
  tool.main.recording = {};
  EXPECT_EQ(startedNotice(tool.main.around.folders.state), "") << "all of it is saved";
}

INSTANTIATE_TEST_SUITE_P(Lines, LiveChart, ::testing::Values(Line::Orvantis, Line::Tessara));

TEST(UnsavedChart, IsToldAtTheNextStartAndOpensLikeAnyChart) {
  Tool tool;
  const std::string state = tool.main.around.folders.state;
  FrameElements& f = tool.main.frame;
  tool.press(f.ChartBtn);
  tool.run(10'000);
  EXPECT_EQ(startedNotice(state), "") << "a program that still runs has lost nothing";
  const LogTable<9> recorded = tool.main.logs.chartData;
  tool.main.recording = {};  // the program is gone
  const std::string notice = startedNotice(state);
  const std::size_t from = notice.find(state);
  ASSERT_NE(from, std::string::npos) << notice;
  tool.press(f.ChartBtn);
  tool.line.detach(1);
  tool.press(f.dataBtn);
  tool.run(10'000);
  tool.dialogs.openAnswer = notice.substr(from, notice.find(".csv") + 4 - from);
  tool.press(tool.main.data.cmDataBtn);
  ASSERT_EQ(tool.main.logs.chartData.size(), recorded.size() - 1);
  EXPECT_NEAR(tool.main.logs.chartData[3][1], recorded[3][1], 0.006);
}

TEST(UnsavedChart, CanBeSavedWhenTheLinkIsGone) {
  Tool tool(makeProfile(Line::Tessara));
  FrameElements& f = tool.main.frame;
  tool.press(f.ChartBtn);
  tool.run(30'000);
  tool.dialogs.saveAnswer = tool.settings / "chart.csv";
  tool.dialogs.meanwhile = [&] {  // the user takes minutes to name the file
    tool.dialogs.meanwhile = nullptr;
    tool.device.addFault({.kind = FaultKind::Silent, .only = "s"});
    wait(tool.main, 120'000);
    EXPECT_FALSE(tool.main.pages.chartOn);
  };
  tool.press(f.saveBtn);
  const auto saved = readChartCsv(tool.settings.get("chart.csv"), tool.main.dict);
  ASSERT_TRUE(saved) << faultText(*saved.fault, {});
  EXPECT_TRUE(saved.table.size() + 1 == tool.main.logs.chartData.size() && f.expertBtn.visible());
  tool.device.clearFaults();
  for (int i = 0; i < 2; ++i) tool.press(f.setupBtn);  // another page, and back
  tool.dialogs.saveAnswer = tool.settings / "again.csv";
  tool.press(f.saveBtn);
  const auto again = readChartCsv(tool.settings.get("again.csv"), tool.main.dict);
  EXPECT_EQ(again.table, saved.table);
}

}  // namespace
}  // namespace zephon
