#pragma once

#include "logs/chart_download.h"
#include "logs/event_download.h"
#include "logs/history_download.h"
#include "logs/log_controls.h"
#include "support/bench.h"

namespace zephon::testing_support {

// A device with something in all its logs, and the user on the data page.
class DownloadWorld : public World {
 public:
  explicit DownloadWorld(const simulator::Profile& profile = {}, double recordingHours = 20)
      : World(profile, {.pastSeconds = 5 * 86400, .recordingHours = recordingHours}) {
    stay(Page::Data);
    for (const LogControls* log : {&kEventControls, &kHistoryControls, &kChartControls}) {
      (main.data.*log->button).setTexts(main.dict[log->captionKey]);
      if (log->clear) (main.data.*log->clear).setVisible(true);
    }
  }

  bool pageButtonsEnabled(bool on) const {
    const FrameElements& f = main.frame;
    return f.measBtn.enabled() == on && f.ScopeBtn.enabled() == on && f.ChartBtn.enabled() == on &&
           f.outletsBtn.enabled() == on && f.dataBtn.enabled() == on && f.setupBtn.enabled() == on;
  }
  bool tablesEmpty() const {
    const Logs& l = main.logs;
    return l.tsData.empty() && l.histData.empty() && l.chartData.empty() && l.rawLogBuffer.empty() &&
           l.shown == ShownLog::None;
  }
};

}  // namespace zephon::testing_support
