#include "expert/findings_list.h"

#include <algorithm>

#include "logs/history_record.h"
#include "protocol/day_serial.h"
#include "text/number.h"

namespace zephon {
namespace {

RowNumbers chosenRows(const Main& main) {
  const int index = main.frame.findingsList.index();
  const std::vector<ListedFinding> lines = listedFindings(main.findings);
  if (index < 0 || static_cast<std::size_t>(index) >= lines.size()) return {};
  const auto slot = lines[static_cast<std::size_t>(index)].slot;
  return slot ? main.findings.rows[*slot] : RowNumbers{};
}

std::vector<TreeNode> nodesOf(const Main& main, const RowNumbers& rows) {
  const auto& source = main.data.TreeView1.source();
  std::vector<TreeNode> nodes;
  for (const std::size_t row : rows) {
    const auto node = source ? source->nodeOfRow(row) : std::nullopt;
    if (node) nodes.push_back(*node);
  }
  return nodes;
}

// The moments of rows that still stand.
template <class Table, class MomentOf>
std::vector<double> momentsOf(const Table& table, const RowNumbers& rows, MomentOf momentOf) {
  std::vector<double> moments;
  for (const std::size_t row : rows) {
    if (row < table.size()) moments.push_back(momentOf(table[row]));
  }
  std::sort(moments.begin(), moments.end());
  return moments;
}

// Events stand in no graph.
std::vector<double> marksOf(const Main& main, const RowNumbers& rows) {
  const Logs& logs = main.logs;
  if (main.findings.log == ShownLog::History)
    return momentsOf(logs.histData, rows, [](const auto& row) { return dateSerial(momentOfRow(row)); });
  if (main.findings.log == ShownLog::Chart)
    return momentsOf(logs.chartData, rows, [](const auto& row) { return row[0]; });
  return {};
}

}  // namespace

std::vector<ListedFinding> listedFindings(const Findings& findings) {
  std::vector<ListedFinding> lines;
  for (std::size_t slot = 0; slot < kFindingSlots; ++slot) {
    if (!findings.findingFlags[slot]) continue;
    const std::string number = padded(static_cast<std::int64_t>(lines.size()) + 1, 2);
    lines.push_back({slot, number + ". " + findings.findingTexts[slot]});
  }
  if (lines.empty()) lines.push_back({{}, std::string("01. ") + kNothingFound});
  return lines;
}

void showFindings(Main& main) {
  std::vector<std::string> texts;
  for (ListedFinding& line : listedFindings(main.findings)) texts.push_back(std::move(line.text));
  main.frame.findingsList.setItems(std::move(texts));
  main.frame.findingsList.setVisible(true);
}

void pointOutFinding(Main& main) {
  const RowNumbers rows = chosenRows(main);
  main.data.TreeView1.select(nodesOf(main, rows));
  main.frame.CWGraph2.setMarks(marksOf(main, rows));
}

}  // namespace zephon
