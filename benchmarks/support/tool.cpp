#include "support/tool.h"

#include <cstdio>
#include <cstdlib>

#include "platform/poll_loop.h"
#include "protocol/exchange.h"
#include "shell/start.h"
#ifdef ZEPHON_WITH_WINDOW
#include <QApplication>

#include "window/main_window.h"
#include "window/qt_loop.h"
#endif

namespace zephon::benchmarks {

Tool::Tool(EventLoop& loop, Dialogs& dialogs, const std::string& ports)
    : serial_(PortFolders{ports, {}}),
      main({loop, serial_, clock_, dialogs,
            Folders{ZEPHON_RESOURCES, settings_.path(), settings_.path(), {}}}) {
  formLoad(main, "");
}

void runOnPoll(const std::string& ports, const Work& work) {
  PollLoop loop;
  NoDialogs dialogs;
  Tool tool(loop, dialogs, ports);
  work(tool.main);
  formUnload(tool.main);
}

#ifdef ZEPHON_WITH_WINDOW
bool runInWindow(const std::string& ports, const Work& work) {
  constexpr double kSettleMs = 500;
  ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
  char name[] = "benchmark";
  char* arguments[] = {name, nullptr};
  int count = 1;
  QApplication application(count, arguments);
  QtLoop loop;
  NoDialogs dialogs;
  Tool tool(loop, dialogs, ports);
  MainWindow window(tool.main, [] {});
  window.show();
  wait(tool.main, kSettleMs);
  work(tool.main);
  formUnload(tool.main);
  return true;
}
#else
bool runInWindow(const std::string& /*ports*/, const Work& /*work*/) {
  return false;
}
#endif

void openMeasurementPage(Main& main) {
  main.frame.measBtn.click();
  if (!main.pages.measuring) {
    std::fprintf(stderr, "no measurement: %s\n", main.frame.linkLbl.caption().c_str());
    std::exit(EXIT_FAILURE);
  }
  main.timers.measurementTimer.setEnabled(false);
}

}  // namespace zephon::benchmarks
