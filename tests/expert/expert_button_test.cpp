#include "expert/expert_button.h"

#include <gtest/gtest.h>

#include "expert/findings_list.h"
#include "expert/line_voltage.h"
#include "expert/tables.h"
#include "logs/shown_log.h"
#include "support/bench.h"

namespace zephon {
namespace {

using namespace testing_support;
using Lines = std::vector<std::string>;

TEST(LineVoltage, IsGuessedByTheMeanAndAnsweredBetweenItsBounds) {
  const std::tuple<std::int16_t, int, std::int16_t> means[] = {
      {120, 240, 120}, {240, 235, 240}, {240, 234, 230}, {240, 220, 230},
      {240, 219, 208}, {240, 190, 208}, {240, 189, 240}};
  for (const auto& [nominal, mean, guess] : means)
    EXPECT_EQ(guessedVolts(LogView(history(9, mean).histData), 8, nominal), guess) << mean;
  EXPECT_FALSE(guessedVolts(LogView(chart(1, 120).chartData), 1, 240));
  const std::pair<std::optional<std::string>, std::int16_t> answers[] = {
      {" 208V", 208}, {"100", 100}, {"99.9", 240}, {"260.9", 260},
      {"261", 240},   {"", 230},    {{}, 230},     {"V208", 230}};
  for (const auto& [answer, volts] : answers)
    EXPECT_EQ(answeredVolts(answer, 230, 240), volts) << answer.value_or("-");
}

class ExpertButton : public ::testing::Test, public Bench {
 protected:
  ExpertButton() {
    main.link.nominalVolts = 120;
    main.findings.report = [this] { reports.push_back(main.findings.dateRange); };
    wireExpert(main);
    onData();
  }
  void onData() {
    stay(Page::Data);
    main.data.histDataBtn.setVisible(true);
    main.data.tsDataBtn.setVisible(true);
    main.frame.expertBtn.setVisible(true);
  }
  Lines press() {
    main.frame.expertBtn.click();
    return list.visible() ? list.items() : Lines{};
  }
  std::string text(std::size_t slot) const { return main.findings.findingTexts[slot]; }

  Combo& list = main.frame.findingsList;
  Lines reports;
};

const std::string kClear = std::string("01. ") + kNothingFound;

TEST_F(ExpertButton, ChoosesByThePageAndTheDataHeld) {
  using Log = std::optional<ShownLog>;
  // The page, the model line, the bytes of a raw log and the rows of events and history; the log chosen.
  const std::tuple<std::string, std::int16_t, std::size_t, std::size_t, std::size_t, Log> rows[] = {
      {"scope", 0, 8196, 9, 0, {}},
      {"chart", 0, 8196, 9, 0, ShownLog::Chart},
      {"second line", 1, 0, 9, 0, ShownLog::Events},
      {"second line", 0, 0, 9, 0, ShownLog::None},
      {"data", 0, 9999, 0, 9, ShownLog::Events},
      {"data", 0, 10'000, 9, 9, ShownLog::None},
      {"data", 0, 100'001, 9, 9, ShownLog::History},
      {"data", 0, 0, 0, 0, {}},
      {"data", 0, 0, 2, 0, ShownLog::Events},
      {"data", 0, 0, 0, 2, ShownLog::History},
      {"chart memory", 0, 32'768, 0, 0, ShownLog::Chart}};
  for (const auto& [page, modelLine, raw, eventRows, historyRows, log] : rows) {
    SCOPED_TRACE(page + ' ' + std::to_string(raw));
    main.link.modelLine = modelLine;
    main.logs = history(historyRows, 120);
    main.logs.tsData = events({eventRows, {64, 1}}).tsData;
    main.logs.rawLogBuffer.assign(raw, 'x');
    main.logs.shown = page == "chart memory" ? ShownLog::Chart : ShownLog::None;
    main.scope.CH1togBtn.setVisible(page == "scope");
    main.chart.vlnChartBtn.setVisible(page == "chart");
    main.data.histDataBtn.setVisible(page == "data");
    main.data.tsDataBtn.setVisible(page == "data" || page == "second line");
    EXPECT_EQ(logToAnalyse(main), log);
    press();
    EXPECT_EQ(list.visible(), log.has_value());
  }
}

TEST_F(ExpertButton, TellsTheRangeOfEachLog) {
  main.logs = events({{64, 2}, {64, 40}});
  EXPECT_EQ(press(), Lines{"01. " + text(3)});
  main.logs = history(49, 120);
  main.logs.histData.back() = {13, 9, 11, 12};
  EXPECT_EQ(press(), Lines{kClear});
  main.logs = chart(3, 120);
  main.logs.chartData[1][0] += 2;
  main.chart.vlnChartBtn.setVisible(true);
  EXPECT_EQ(press(), Lines{kClear});
  EXPECT_EQ(reports,
            (Lines{"06/09/2013 To 03/05/2024", "11/09/2013 To 01/01/2013", "05/01/2013 To 05/03/2013"}));
}

TEST_F(ExpertButton, AsksForTheVoltageAndAnalysesByTheAnswer) {
  main.link.nominalVolts = 240;
  main.logs = history(102, 230, {{10, 0.94, 50}, {9, 1.04, 102}});
  dialogs.promptAnswer = "208V";
  press();
  EXPECT_TRUE(main.findings.findingFlags[34] && !main.findings.findingFlags[33]);  // 230 V are high
  EXPECT_EQ(dialogs.texts(), Lines{"The Expert Analysis will use a nominal line voltage of 230V. If this is "
                                   "incorrect, enter a new value."});
  EXPECT_EQ(main.link.ratedVolts, 208);
  main.logs = events({{64, 1}, {64, 2}});
  press();
  EXPECT_EQ(dialogs.shown().size(), 1u) << "events need no voltage";
  // A page left while the question stands has no report.
  main.logs = history(102, 230);
  dialogs.meanwhile = [this] { stay(Page::None); };
  reports.clear();
  press();
  EXPECT_TRUE(reports.empty() && !list.visible());
}

TEST_F(ExpertButton, TakesASteadyRecordingForSteady) {
  main.chart.vlnChartBtn.setVisible(true);
  main.recording.live = true;
  main.logs = chart(60, 118, {{2, 4, 60}, {3, 500, 60}});
  main.logs.chartData.back() = {};  // the row being filled
  EXPECT_EQ(press(), Lines{"01. " + text(39)}) << "a load above 300 W, and no trend";
  EXPECT_EQ(main.logs.chartData.back()[1], 0) << "the recording itself stays as it is";
}

TEST_F(ExpertButton, ForgetsWhatWasBefore) {
  main.logs = history(8 * 48 + 1, 120, {{6, 2000, 8, 10, 48}});
  EXPECT_EQ(press(), Lines{"01. Power usage peaks occur regularly on most days around 05:00."});
  main.logs = history(8 * 48 + 1, 120);
  EXPECT_EQ(press(), Lines{kClear});
  EXPECT_EQ(text(53), "Power usage peaks occur regularly on most days around ");
}

TEST_F(ExpertButton, AChosenFindingHasItsRowsPickedOut) {
  const Tree& tree = main.data.TreeView1;
  const auto& marks = main.frame.CWGraph2.marks();
  main.logs = history(102, 120, {{11, 31, 2, 7, 50}});
  showHistory(main);
  ASSERT_EQ(press().size(), 2u);
  list.choose(1);
  ASSERT_EQ(tree.selection().size(), 2u);
  EXPECT_EQ(tree.source()->rowOfNode(tree.selection()[1]), 57u);
  ASSERT_EQ(marks.size(), 2u);
  EXPECT_DOUBLE_EQ(marks[0], 41'275 + 3.5 / 24);
  main.logs = chart(102, 120, {{2, 31, 2, 40, 30}});
  main.logs.shown = ShownLog::Chart;
  onData();
  press();
  list.choose(0);
  EXPECT_EQ(marks, (std::vector<double>{main.logs.chartData[40][0], main.logs.chartData[70][0]}));
  hideShownLog(main);
  EXPECT_TRUE(!list.visible() && list.items().empty() && marks.empty());
}

}  // namespace
}  // namespace zephon
