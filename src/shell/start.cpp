#include "shell/start.h"

#include <cstdio>

#include "comm/mod_comm.h"
#include "display/link_status.h"
#include "display/unsaved_chart.h"
#include "protocol/exchange.h"
#include "shell/configuration.h"
#include "shell/connection.h"
#include "shell/dictionary.h"
#include "shell/wiring.h"
#include "text/strings.h"

namespace zephon {

Started formLoad(Main& main, const std::string& commandLine) {
  readConfiguration(main);
  const std::string fault = loadDictionary(main);
  if (!fault.empty()) {
    main.around.dialogs.message(kNoDictionary);
    std::fprintf(stderr, "zephon: %s\n", fault.c_str());
    return Started::NoDictionary;
  }
  wireMain(main);
  if (equalIgnoringCase(commandLine, "expert")) return Started::Ended;
  if (!commandLine.empty()) return Started::Export;
  main.frame.adBanner.setVisible(main.config.bannerDisplay);
  resetDisplays(main);
  main.frame.comBtn.setVisible(true);
  showLinkState(main);
  tellUnsavedCharts(main);
  return Started::Form;
}

void formUnload(Main& main) {
  main.closing = true;
  if (main.exchange.writesInFlight > 0) return;  // at its end the write ends the program
  main.ending = true;
  main.pages.scopeOn = false;
  const Port port = portOf(main);
  CommSetLine(port, main.link.commPort, kLineRts, false);
  CommSetLine(port, main.link.commPort, kLineDtr, false);
  CommClose(port, main.link.commPort);
}

}  // namespace zephon
