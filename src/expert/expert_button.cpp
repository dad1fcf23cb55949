#include "expert/expert_button.h"

#include "expert/chart_analysis.h"
#include "expert/event_analysis.h"
#include "expert/findings_list.h"
#include "expert/history_analysis.h"
#include "expert/line_voltage.h"
#include "expert/row_date.h"
#include "logs/raw_log.h"
#include "logs/shown_log.h"
#include "protocol/asking.h"
#include "protocol/day_serial.h"
#include "protocol/stay.h"
#include "text/date_picture.h"

namespace zephon {
namespace {

constexpr char kDatePicture[] = "mm/dd/yyyy";

std::string span(const std::string& from, const std::string& to) {
  return from + " To " + to;
}

std::string rangeOfEvents(const Main& main) {
  const LogView log(main.logs.tsData);
  if (log.rows() == 0) return {};
  const CalendarTime today = presentTime(main.around.clock);
  return span(rowDay(log, log.largestRow()), formatDate(today, kDatePicture));
}

std::string rangeOfHistory(const Main& main) {
  const LogView log(main.logs.histData);
  if (log.rows() == 0) return {};
  return span(rowDay(log, log.largestRow()), rowDay(log, 0));
}

std::string rangeOfChart(const Main& main) {
  const LogTable<9>& chart = main.logs.chartData;
  if (chart.size() < 2) return {};
  return span(dateSerialText(chart.front()[0], kDatePicture),
              dateSerialText(chart[chart.size() - 2][0], kDatePicture));
}

LoggedDevice deviceOf(const Main& main) {
  const Link& link = main.link;
  return {link.modelLine, link.firmwareVersion, link.nominalVolts, link.ratedVolts, main.counters.olCount};
}

Analysis analyseEvents(const Main& main) {
  return expertTS(main.logs, deviceOf(main));
}

Analysis analyseHistory(const Main& main) {
  return expertHist(main.logs, deviceOf(main));
}

// The row that a live chart is filling holds zeros until its tick ends, and the moving mean of a chart takes
// the last row in: a steady recording of some rows would be told as falling. What was measured last stands in
// for what is being measured.
Analysis analyseChart(const Main& main) {
  const LogTable<9>& chart = main.logs.chartData;
  if (!main.recording.live || chart.size() < 2) return expertChart(main.logs, deviceOf(main));
  Logs filled;
  filled.chartData = chart;
  filled.chartData.back() = chart[chart.size() - 2];
  return expertChart(filled, deviceOf(main));
}

struct LogToAnalyse {
  ShownLog log;
  Analysis (*analyse)(const Main& main);
  std::string (*range)(const Main& main);
  // The voltages that tell what the line's is: those of a column of the log. Without one nobody is asked.
  std::optional<std::size_t> voltsColumn;
};
constexpr LogToAnalyse kLogs[] = {{ShownLog::Events, analyseEvents, rangeOfEvents, {}},
                                  {ShownLog::History, analyseHistory, rangeOfHistory, 8},
                                  {ShownLog::Chart, analyseChart, rangeOfChart, 1}};

LogView viewOf(const Logs& logs, ShownLog log) {
  return log == ShownLog::Chart ? LogView(logs.chartData) : LogView(logs.histData);
}

// False when there is no voltage to assume.
bool askForVoltage(Main& main, ShownLog log, std::size_t column) {
  Link& link = main.link;
  link.ratedVolts = link.nominalVolts;
  const auto guessed = guessedVolts(viewOf(main.logs, log), column, link.nominalVolts);
  if (!guessed) return false;
  const auto answer = askText(main, kVoltageTitle, voltageQuestion(*guessed), std::to_string(*guessed));
  link.ratedVolts = answeredVolts(answer, *guessed, link.nominalVolts);
  return true;
}

void clearFindings(Main& main) {
  hideFindings(main);
  Findings& found = main.findings;
  found.findingFlags.fill(false);
  found.rows.fill({});
  found.log = ShownLog::None;
  found.dateRange.clear();
  for (const TimedText& text : {kPowerPeaks, kVoltageMinimums})
    found.findingTexts[static_cast<std::size_t>(text.slot)] = text.opening;
}

void take(Findings& findings, Analysis found) {
  findings.findingFlags = found.flags;
  findings.rows = std::move(found.rows);
  for (auto& [slot, text] : found.texts)
    findings.findingTexts[static_cast<std::size_t>(slot)] = std::move(text);
}

void analyseLog(Main& main, const LogToAnalyse& log) {
  main.findings.log = log.log;
  const bool good = !log.voltsColumn || askForVoltage(main, log.log, *log.voltsColumn);
  if (good) take(main.findings, log.analyse(main));
  main.findings.dateRange = log.range(main);  // a live chart goes on growing while the question stands
}

// A table that was read from a .csv file has no raw bytes to be told by.
std::optional<ShownLog> withoutRawBytes(const Logs& logs) {
  if (logs.histData.empty() && logs.tsData.empty()) return {};
  if (logs.histData.empty() && logs.tsData.size() > 1) return ShownLog::Events;
  return logs.histData.size() > 1 ? ShownLog::History : ShownLog::None;
}

}  // namespace

std::optional<ShownLog> logToAnalyse(const Main& main) {
  const Logs& logs = main.logs;
  if (main.scope.CH1togBtn.visible()) return {};
  // The chart memory is shown on the data page too.
  if (main.chart.vlnChartBtn.visible() || logs.shown == ShownLog::Chart) return ShownLog::Chart;
  if (main.data.histDataBtn.visible())
    return logs.rawLogBuffer.empty() ? withoutRawBytes(logs) : logOfRawBytes(logs.rawLogBuffer);
  const bool eventsOfSecondLine = main.data.tsDataBtn.visible() && main.link.modelLine == 1;
  return eventsOfSecondLine ? ShownLog::Events : ShownLog::None;
}

void analyse(Main& main) {
  const Stay stay(main);
  clearFindings(main);
  const auto wanted = logToAnalyse(main);
  if (!wanted) return;
  for (const LogToAnalyse& log : kLogs) {
    if (log.log == *wanted) analyseLog(main, log);
  }
  if (!stay.stands()) return;  // left while the question stood
  showFindings(main);
  if (main.findings.report) main.findings.report();
}

void wireExpert(Main& main) {
  main.frame.expertBtn.onChange = [&main](bool pressed) {
    if (!pressed) analyse(main);
  };
  main.frame.findingsList.onClick = [&main] { pointOutFinding(main); };
}

}  // namespace zephon
