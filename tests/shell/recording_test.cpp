#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "files/chart_csv.h"
#include "protocol/day_serial.h"
#include "shell/tool.h"

// The live chart in the whole tool: hours of it, with outages of the link, held against what the device saw.

namespace zephon {
namespace {

using simulator::Fault;
using simulator::FaultKind;
using simulator::Held;
using simulator::Line;
using simulator::makeProfile;
using testing_support::Tool;

constexpr double kSecond = 1 / 86400.0;

// What the device measured for a row, and when the row was due.
struct Expected {
  Held held;
  bool answers = true;
  double kilowattHours = 0;
  double from = 0, until = 0;  // the row's moment
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
    ASSERT_TRUE(tool_.idle());
    now_.from = moment();
    tool_.press(tool_.main.frame.ChartBtn);
  }
  void expectRows() const {
    for (std::size_t i = 0; i < expected_.size(); ++i) {
      SCOPED_TRACE(i);
      expectRow(tool_.main.logs.chartData[i], expected_[i]);
      if (::testing::Test::HasFailure()) return;
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
    now_.held = {.volts = 105 + std::fmod(k * 1.37, 30),
                 .amps = std::fmod(k * 0.173, 12),
                 .watts = std::fmod(k * 11, 1400),
                 .neutralGroundVolts = 4 + std::fmod(k * 0.71, 40),
                 .hertz = 57 + std::fmod(k, 6),
                 .powerFactor = -1 + std::fmod(k * 0.11, 2),
                 .crestFactor = 1.3 + std::fmod(k * 0.017, 0.4)};
    tool_.device.hold(now_.held);
    now_.from = moment();
    now_.kilowattHours = tool_.device.device().kilowattHours();
  }

  void expectRow(const std::array<double, 9>& row, const Expected& e) const {
    EXPECT_GE(row[0], e.from + 0.9 * kSecond);
    EXPECT_LE(row[0], e.until + 1e-9);
    if (!e.answers) {
      for (std::size_t i = 1; i < 9; ++i) EXPECT_EQ(row[i], 0) << i;
      return;
    }
    const auto near = [&](std::size_t column, double value, double off) {
      EXPECT_NEAR(row[column], value, off) << column;
    };
    near(1, *e.held.volts, first_ ? 0.014 : 1.5);
    near(4, *e.held.neutralGroundVolts, first_ ? 0.006 : 1.5);
    if (!first_) return;
    near(2, *e.held.amps, 0.006);
    near(3, *e.held.watts, 4.1);
    near(5, *e.held.hertz, 0.14);
    near(6, *e.held.powerFactor, 0.02);
    near(7, *e.held.crestFactor, 0.002);
    near(8, e.kilowattHours, 0.001);
  }

  Tool tool_;
  bool first_;
  std::vector<Expected> expected_;
  Expected now_;
};

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
  ASSERT_TRUE(saved) << faultText(*saved.fault);
  ASSERT_EQ(saved.table.size(), hours.finished());
  for (std::size_t i = 0; i < saved.table.size(); ++i) {
    EXPECT_NEAR(saved.table[i][0], tool.main.logs.chartData[i][0], kSecond);
    EXPECT_NEAR(saved.table[i][1], tool.main.logs.chartData[i][1], 0.006);
  }
  EXPECT_TRUE(tool.dialogs.texts().back().ends_with(".csv"));
}

INSTANTIATE_TEST_SUITE_P(Lines, LiveChart, ::testing::Values(Line::Orvantis, Line::Tessara));

// A tool in the same folders, as it is started after the one before has ended in whatever way.
std::string startedNotice(const std::string& state) {
  testing_support::Bench bench;
  bench.main.around.folders.state = state;
  formLoad(bench.main, "");
  return bench.main.frame.noticeLbl.caption();
}

TEST(UnsavedChart, IsToldAtTheNextStartAndOpensLikeAnyChart) {
  Tool tool;
  const std::string state = tool.main.around.folders.state;
  FrameElements& f = tool.main.frame;
  tool.press(f.ChartBtn);
  tool.run(10'000);
  EXPECT_EQ(startedNotice(state), "") << "a program that still runs has lost nothing";
  const LogTable<9> recorded = tool.main.logs.chartData;
  tool.dialogs.saveAnswer = tool.settings / "missing/chart.csv";
  tool.press(f.saveBtn);
  tool.main.recording = {};  // the program is gone
  const std::string notice = startedNotice(state);
  const std::size_t from = notice.find(state);
  ASSERT_NE(from, std::string::npos) << notice;
  EXPECT_EQ(startedNotice(state), "");

  tool.press(f.ChartBtn);
  tool.line.detach(1);
  tool.press(f.dataBtn);
  tool.run(10'000);
  tool.dialogs.openAnswer = notice.substr(from, notice.find(".csv") + 4 - from);
  tool.press(tool.main.data.cmDataBtn);
  ASSERT_EQ(tool.main.logs.chartData.size(), recorded.size() - 1);
  EXPECT_NEAR(tool.main.logs.chartData[3][1], recorded[3][1], 0.006);
  EXPECT_TRUE(f.CWGraph2.visible());
}

TEST(UnsavedChart, ASaveEndsItUntilTheNextRow) {
  Tool tool;
  const std::string state = tool.main.around.folders.state;
  FrameElements& f = tool.main.frame;
  tool.press(f.ChartBtn);
  tool.run(10'000);
  tool.dialogs.saveAnswer = tool.settings / "chart.csv";
  tool.press(f.saveBtn);
  tool.press(f.ChartBtn);
  tool.main.recording = {};
  EXPECT_EQ(startedNotice(state), "");
}

TEST(UnsavedChart, CanBeSavedWhileItIsRecordedAndWhenTheLinkIsGone) {
  Tool tool(makeProfile(Line::Tessara));
  FrameElements& f = tool.main.frame;
  tool.press(f.ChartBtn);
  tool.run(30'000);
  const std::size_t rows = tool.main.logs.chartData.size();
  // The user takes minutes to name the file, in the middle of a tick, and the link is lost meanwhile.
  tool.dialogs.saveAnswer = tool.settings / "chart.csv";
  tool.dialogs.meanwhile = [&] {
    tool.dialogs.meanwhile = nullptr;
    wait(tool.main, 60'000);
    EXPECT_GT(tool.main.logs.chartData.size(), rows + 3);
    tool.device.addFault({.kind = FaultKind::Silent, .only = "s"});
    wait(tool.main, 120'000);
    EXPECT_FALSE(tool.main.pages.chartOn);
  };
  std::function<void()> pressInATick = [&] {
    tool.main.recording.ticking ? tool.press(f.saveBtn) : tool.later(50, pressInATick);
  };
  pressInATick();
  tool.run(300'000);
  const auto saved = readChartCsv(tool.settings.get("chart.csv"), tool.main.dict);
  ASSERT_TRUE(saved) << faultText(*saved.fault);
  EXPECT_EQ(saved.table.size() + 1, tool.main.logs.chartData.size());
  EXPECT_TRUE(f.saveBtn.visible() && f.expertBtn.visible());
  tool.device.clearFaults();
  for (Button* page : {&f.setupBtn, &f.measBtn}) {
    tool.press(*page);
    tool.run(5000);
    EXPECT_FALSE(tool.main.chart.vlnChartBtn.visible()) << page->name();
    tool.press(*page);
    EXPECT_TRUE(f.saveBtn.visible() && f.expertBtn.visible()) << page->name();
    tool.dialogs.saveAnswer = tool.settings / page->name();
    tool.press(f.saveBtn);
    EXPECT_NE(tool.settings.get(page->name()), "") << page->name();
  }
}

}  // namespace
}  // namespace zephon
