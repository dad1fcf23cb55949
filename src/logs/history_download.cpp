#include "logs/history_download.h"

#include <utility>

#include "comm/cable.h"
#include "logs/history_log.h"
#include "logs/shown_log.h"
#include "logs/transfer.h"
#include "protocol/dict_text.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyStoppedShort = 208;
constexpr double kPauseMs = 50;

std::optional<std::string> download(Main& main, const Stay& stay) {
  if (!checkCOMsettings(main)) return {};
  if (!drainLine(main, kHistoryControls) || !stay.wait(kPauseMs)) return {};
  return downloadFrame(main, kHistoryControls, orvantis::kHistory, beginsAsHistory);
}

// The link is up, and the device has stopped in the middle.
bool stoppedShort(const Main& main) {
  return main.link.connected && main.exchange.lastFailure == ExchangeFailure::ShortReply &&
         !main.exchange.shortfall.empty();
}

}  // namespace

bool getHistData(Main& main) {
  const Stay stay(main);
  forgetLogs(main);
  main.exchange.shortfall.clear();
  auto frame = download(main, stay);
  if (!frame) {
    if (!goesOn(main, stay) || !stoppedShort(main)) return endWithoutLog(main, stay);
    main.around.dialogs.message(dictText(main, kKeyStoppedShort), std::exchange(main.exchange.shortfall, {}));
    return true;
  }
  main.logs.rawLogBuffer = std::move(*frame);
  auto rows =
      decodeHistoryFrame(main.logs.rawLogBuffer, main.link.nominalVolts, utcOffset(main.around.clock.now()));
  main.logs.histData = std::move(rows).value_or(LogTable<12>());
  showHistory(main);
  return true;
}

bool setClrHistData(Main& main) {
  return confirmedWrite(main, orvantis::kClearHistory, kPauseMs, "Y");
}

}  // namespace zephon
