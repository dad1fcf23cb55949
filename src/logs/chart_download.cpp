#include "logs/chart_download.h"

#include <algorithm>

#include "comm/cable.h"
#include "logs/chart_memory.h"
#include "logs/shown_log.h"
#include "logs/transfer.h"
#include "protocol/encodings.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyBuilding = 89;
constexpr double kPauseMs = 50;
constexpr double kBeforePageMs = 100;
constexpr double kBeforeRetryMs = 400;
constexpr double kBuildingMs = 100;
constexpr int kTries = 5;

// The download under way.
class ChartDownload {
 public:
  explicit ChartDownload(Main& main) : main_(main), stay_(main), shown_(main, kChartControls) {}

  // All pages up to the end of what is recorded, joined. Nothing when it was ended or a page did not come.
  std::optional<std::string> pages();
  // The bytes become rows, while the button says so.
  bool build(std::string stream);

 private:
  std::optional<std::string> page(std::string_view address);
  bool ask(std::string_view address);
  bool prepareRetry();
  bool pause(double milliseconds) { return stay_.wait(milliseconds) && goesOn(main_, stay_); }
  void show(std::size_t cameOfPage) { shown_.show(stream_.size() + cameOfPage, memory_.bytes); }

  Main& main_;
  Stay stay_;
  ShownTransfer shown_;
  ChartMemory memory_;
  std::string stream_;
};

// A device that has heard the command waits for its two bytes: they are sent even when the user has ended the
// download in between.
bool ChartDownload::ask(std::string_view address) {
  flushPort(main_);
  if (!pause(kBeforePageMs)) return false;
  const WriteInFlight held(main_);
  if (!sendText(main_, orvantis::kChartPage.text)) return false;
  return stay_.wait(kPauseMs) && sendText(main_, hex2ascii(std::string(address)));
}

// A reply that only paused would go on into the next one: whatever still comes is waited for.
bool ChartDownload::prepareRetry() {
  const Transfer late = receive(main_, std::string::npos, {.watchdogMs = kBeforeRetryMs});
  if (!late.bytes.empty()) receive(main_, std::string::npos, kRunOut);
  return goesOn(main_, stay_);
}

std::optional<std::string> ChartDownload::page(std::string_view address) {
  std::size_t came = 0;
  for (int attempt = 0; attempt < kTries; ++attempt) {
    if (!ask(address)) return std::nullopt;
    Transfer transfer = receive(main_, kChartReplyBytes, {.windowMs = orvantis::kChartPage.timeoutMs},
                                [this](std::size_t bytes) { show(bytes); });
    if (transfer.end == TransferEnd::Whole) return std::move(transfer.bytes);
    came = std::max(came, transfer.bytes.size());
    if (transfer.end != TransferEnd::Quiet || !prepareRetry()) break;
  }
  if (goesOn(main_, stay_))
    main_.exchange.shortfall = shortfallText(main_, stream_.size() + came, memory_.pages * kChartPageBytes);
  return std::nullopt;
}

// All twelve pages are asked for whatever the first one tells: a smaller memory reads as empty behind its
// end. Should one say nothing there, it has been read whole all the same.
std::optional<std::string> ChartDownload::pages() {
  for (std::size_t i = 0; i < kChartPages.size(); ++i) {
    const auto reply = page(kChartPages[i]);
    if (!reply && i >= memory_.pages && goesOn(main_, stay_)) break;
    if (!reply) return std::nullopt;
    if (i == 0) memory_ = chartMemoryOf(*reply);
    stream_ += chartPage(*reply).value_or(std::string_view());
    show(0);
    if (chartMemoryEnds(stream_)) break;
  }
  return std::move(stream_);
}

bool ChartDownload::build(std::string stream) {
  shown_.showWork(kKeyBuilding);
  if (!pause(kBuildingMs)) return false;
  main_.logs.rawLogBuffer = std::move(stream);
  main_.logs.chartData = decodeChartMemory(main_.logs.rawLogBuffer, utcOffset(main_.around.clock.now()));
  if (!main_.logs.chartData.empty()) main_.logs.shown = ShownLog::Chart;
  return true;
}

bool download(Main& main, const Stay& stay) {
  if (!checkCOMsettings(main)) return false;
  if (!drainLine(main, kChartControls) || !stay.wait(kPauseMs)) return false;
  ChartDownload download(main);
  auto stream = download.pages();
  return stream && download.build(std::move(*stream));
}

}  // namespace

void forgetChart(Main& main) {
  main.logs.chartData = {};
  main.recording.live = false;
}

bool getCMdata(Main& main) {
  const Stay stay(main);
  forgetLogs(main);
  forgetChart(main);
  main.exchange.shortfall.clear();
  main.exchange.timedOut = false;
  return download(main, stay) || endWithoutLog(main, stay);
}

}  // namespace zephon
