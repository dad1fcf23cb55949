#include "protocol/asking.h"

namespace zephon {
namespace {

class WatchdogRest {
 public:
  explicit WatchdogRest(Timer& watchdog) : watchdog_(watchdog), ran_(watchdog.enabled()) {
    watchdog_.setEnabled(false);
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
  const WatchdogRest rest(main.exchange.Timer1);
  main.around.dialogs.message(text, advice);
}

bool askYesNo(Main& main, const std::string& question) {
  const WatchdogRest rest(main.exchange.Timer1);
  return main.around.dialogs.yesNo(question);
}

std::optional<std::string> askText(Main& main, const std::string& title, const std::string& text,
                                   const std::string& answer) {
  const WatchdogRest rest(main.exchange.Timer1);
  return main.around.dialogs.prompt(title, text, answer);
}

}  // namespace zephon
