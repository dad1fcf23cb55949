#include "shell/wiring.h"

#include "display/chart_page.h"
#include "display/data_page.h"
#include "display/log_views.h"
#include "display/measurement_page.h"
#include "display/outlets_page.h"
#include "display/report_saving.h"
#include "display/saving.h"
#include "display/scope_page.h"
#include "display/setup_page.h"
#include "expert/expert_button.h"
#include "protocol/exchange.h"
#include "shell/com_page.h"
#include "shell/connection.h"
#include "shell/dictionary.h"
#include "shell/help.h"
#include "shell/page_buttons.h"
#include "shell/polling.h"

namespace zephon {

void wireMain(Main& main) {
  const PageExits exits{[&main] { errorSub(main); }};
  wireWatchdog(main);     // Timer1
  wirePageButtons(main);  // measBtn, ScopeBtn, ChartBtn, outletsBtn, dataBtn, setupBtn, comBtn
  wireMeasurementPage(main);
  wireSetupPage(main, exits);    // also Timer2 and Timer3
  wireOutletsPage(main, exits);  // also outletTimer
  wireDataPage(main, exits);
  wireChartPage(main, exits);  // also chartTimer
  wireScopePage(main, exits);  // also scopeTimer
  wireLogViews(main);          // also the graph's cursors
  wireSaving(main);            // saveBtn
  wireExpert(main);            // expertBtn and findingsList
  main.findings.report = [&main] { saveExpertReport(main); };
  wireComPage(main);  // saveComBtn, detectComBtn, configComBtn
  main.timers.measurementTimer.onTick = [&main] { pollTick(main); };
  main.com.langCombo.onClick = [&main] { chooseLanguage(main); };
  main.frame.helpBtn.onChange = [&main](bool on) {
    if (on) showHelp(main);
  };
}

}  // namespace zephon
