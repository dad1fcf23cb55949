#include "display/chart_table.h"

#include <algorithm>

#include "display/chart_series.h"
#include "files/chart_journal.h"

namespace zephon {
namespace {

void noteGap(Recording& recording, std::size_t row) {
  if (recording.gaps.empty() || recording.gaps.back()[1] != row) recording.gaps.push_back({row, row});
  recording.gaps.back()[1] = row + 1;
}

void noteSetBack(const LogTable<9>& table, Recording& recording, std::size_t row) {
  if (row == 0) return;
  const double latest = plottedMoment(table, recording, row - 1);
  const bool noted = !recording.setBacks.empty() && recording.setBacks.back().second >= latest;
  if (table[row][0] < latest && !noted) recording.setBacks.emplace_back(row, latest);
}

// In rows of the second line zeros may be an outage.
void takeOver(Main& main) {
  const LogTable<9>& table = main.logs.chartData;
  Recording& recording = main.recording;
  recording.gaps.clear();
  recording.setBacks.clear();
  for (std::size_t row = 0; row < table.size(); ++row) {
    if (main.link.modelLine == 0 && isChartGap(table[row])) noteGap(recording, row);
    noteSetBack(table, recording, row);
  }
  leaveJournal(recording.journal, table.size());
}

}  // namespace

void takeUpChart(Main& main) {
  if (main.recording.live && !main.logs.chartData.empty()) return;
  takeOver(main);
  main.logs.chartData.push_back({});
  main.recording.live = true;
}

void finishChartRow(Main& main, bool gap) {
  LogTable<9>& table = main.logs.chartData;
  const Readings& last = main.readings;
  const std::size_t row = table.size() - 1;
  const double moment = table[row][0];
  table[row] = {moment};
  if (!gap) {
    table[row] = {moment,     last.lastVln, last.lastI,  last.lastP,           last.lastVng,
                  last.lastF, last.lastPF,  last.lastCF, main.energy.energyKWh};
  }
  if (gap) noteGap(main.recording, row);
  noteSetBack(table, main.recording, row);
  table.push_back({});
}

std::size_t finishedChartRows(const Main& main) {
  const std::size_t rows = main.logs.chartData.size();
  return main.recording.live && rows > 0 ? rows - 1 : 0;
}

double plottedMoment(const LogTable<9>& table, const Recording& recording, std::size_t row) {
  const double moment = table[row][0];
  if (recording.setBacks.empty()) return moment;
  const auto after =
      std::upper_bound(recording.setBacks.begin(), recording.setBacks.end(), row,
                       [](std::size_t number, const auto& setBack) { return number < setBack.first; });
  return after == recording.setBacks.begin() ? moment : std::max(moment, std::prev(after)->second);
}

bool isInGap(const Recording& recording, std::size_t row) {
  const auto after = std::upper_bound(recording.gaps.begin(), recording.gaps.end(), row,
                                      [](std::size_t number, const auto& gap) { return number < gap[0]; });
  return after != recording.gaps.begin() && row < (*std::prev(after))[1];
}

}  // namespace zephon
