#include "display/unsaved_chart.h"

#include "display/chart_table.h"
#include "display/file_stamp.h"
#include "files/chart_journal.h"
#include "files/fault_text.h"
#include "protocol/dict_text.h"

namespace zephon {

void keepChartRows(Main& main) {
  ChartJournal& journal = main.recording.journal;
  const std::span<const std::array<double, 9>> rows = main.logs.chartData;
  const SaveResult kept = keepJournal(journal, main.around.folders.state, stampOf(main),
                                      rows.first(finishedChartRows(main)), main.dict);
  if (kept || journal.failureTold) return;
  journal.failureTold = true;
  main.frame.noticeLbl.setCaption(
      filledText(dictText(main, words::kNoJournal), {saveFaultText(kept, main.dict)}));
}

void chartSaved(Main& main) {
  if (main.recording.live) endJournal(main.recording.journal, finishedChartRows(main));
}

bool chartWasLeft(const Main& main) {
  return main.pages.wanted.page == Page::None && finishedChartRows(main) > 0;
}

void tellUnsavedCharts(Main& main) {
  const std::vector<std::string> charts = takeOverJournals(main.around.folders.state);
  if (charts.empty()) return;
  const Word& notice = charts.size() == 1 ? words::kUnsavedChart : words::kUnsavedCharts;
  main.frame.noticeLbl.setCaption(
      filledText(dictText(main, notice), {charts.back(), std::to_string(charts.size() - 1)}));
}

}  // namespace zephon
