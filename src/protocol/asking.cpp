#include "protocol/asking.h"

namespace zephon {
namespace {

class WatchdogRest {
 public:
  explicit WatchdogRest(Main& main) : watchdog_(main.exchange.Timer1), ran_(watchdog_.enabled()) {
    watchdog_.setEnabled(false);
    letChartGoOn(main);
  }
  ~WatchdogRest() {
    if (ran_) watchdog_.setEnabled(true);
  }
  WatchdogRest(const WatchdogRest&) = delete;
  WatchdogRest& operator=(const WatchdogRest&) = delete;

 private:
  Timer& watchdog_;
  bool ran_;
};

}  // namespace

void tell(Main& main, const std::string& text, const std::string& advice) {
  const WatchdogRest rest(main);
  main.around.dialogs.message(text, advice);
}

void tellTitled(Main& main, const std::string& title, const std::string& text) {
  const WatchdogRest rest(main);
  main.around.dialogs.titledMessage(title, text);
}

bool askToClear(Main& main, const std::string& subject) {
  const WatchdogRest rest(main);
  return main.around.dialogs.yesNo("Clear?", subject);
}

std::optional<std::string> askText(Main& main, const std::string& title, const std::string& text,
                                   const std::string& answer) {
  const WatchdogRest rest(main);
  return main.around.dialogs.prompt(title, text, answer);
}

void letChartGoOn(Main& main) {
  if (!main.recording.ticking || !main.pages.chartOn) return;
  ++main.recording.ticks;
  main.recording.ticking = false;
  main.timers.chartTimer.setEnabled(true);
}

}  // namespace zephon
