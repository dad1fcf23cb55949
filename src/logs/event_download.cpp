#include "logs/event_download.h"

#include <utility>

#include "comm/cable.h"
#include "logs/event_log.h"
#include "logs/shown_log.h"
#include "logs/transfer.h"
#include "protocol/counters.h"
#include "protocol/dict_text.h"
#include "protocol/pic_image.h"
#include "protocol/pic_import.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyDownloading = 79;
constexpr std::size_t kKeySecondLine = 214;
constexpr double kPauseMs = 50;

using Events = std::optional<LogTable<8>>;

bool prepare(Main& main, const Stay& stay) {
  if (!checkCOMsettings(main)) return false;
  main.data.TreeView1.setTooltip({});
  if (!drainLine(main, kEventControls) || !stay.wait(kPauseMs)) return false;
  if (!getPDevents(main) || !stay.wait(kPauseMs)) return false;
  flushPort(main);
  return stay.wait(kPauseMs);
}

Events downloadLog(Main& main, const Stay& stay) {
  if (!prepare(main, stay)) return {};
  auto frame = downloadFrame(main, kEventControls, orvantis::kEventLog, beginsAsEvents);
  if (!frame) return {};
  main.logs.rawLogBuffer = std::move(*frame);
  return decodeEventFrame(main.logs.rawLogBuffer, main.link.nominalVolts, utcOffset(main.around.clock.now()));
}

// The import leaves the memory's characters in the raw buffer, which is for logs.
Events importEvents(Main& main, const Stay& stay) {
  Button& button = main.data.tsDataBtn;
  main.data.TreeView1.setTooltip(dictText(main, kKeySecondLine));
  button.setTexts(dictText(main, kKeyDownloading));
  const bool imported = importPIC(main);
  const bool whole = !std::exchange(main.logs.rawLogBuffer, {}).empty();
  if (!stay.stands()) return {};
  if (!imported && !whole && main.pages.dataPageActive)
    main.exchange.shortfall = shortfallText(main, main.exchange.bytesCame, kImageCharacters);
  button.setTexts(dictText(main, kEventControls.captionKey));
  if (!imported) return {};
  return eventsOfTable(main.pdEvents, main.counters, main.limits, main.dict);
}

}  // namespace

bool getTSdata(Main& main) {
  const Stay stay(main);
  forgetLogs(main);
  main.exchange.shortfall.clear();
  Events events = main.link.modelLine == 1 ? importEvents(main, stay) : downloadLog(main, stay);
  if (!events) return endWithoutLog(main, stay);
  main.logs.tsData = std::move(*events);
  showEvents(main);
  return true;
}

}  // namespace zephon
