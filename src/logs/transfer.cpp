#include "logs/transfer.h"

#include <algorithm>
#include <utility>

#include "comm/mod_comm.h"
#include "protocol/dict_text.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyDownloading = 79;
constexpr std::size_t kKeyNotRead = 169;
constexpr std::size_t kEverything = std::string::npos;
constexpr std::int32_t kReadSize = 8196;
constexpr double kDrainMs = 200;
constexpr double kStrayMs = 20;
constexpr double kLongestStrayMs = 500;

ExchangeFailure failureOf(const Transfer& transfer) {
  switch (transfer.end) {
    case TransferEnd::Whole:
      return ExchangeFailure::None;
    case TransferEnd::Cancelled:
      return ExchangeFailure::Cancelled;
    case TransferEnd::Closed:
      return ExchangeFailure::Closed;
    case TransferEnd::TimedOut:
    case TransferEnd::Quiet:
      break;
  }
  return transfer.bytes.empty() ? ExchangeFailure::TimedOut : ExchangeFailure::ShortReply;
}

// The windows of a transfer's patience.
class Windows {
 public:
  Windows(const EventLoop& loop, double milliseconds) : loop_(loop), length_(fromMillis(milliseconds)) {
    if (milliseconds > 0) end_ = loop.now() + length_;
  }
  Instant end() const { return end_; }
  // True when one has passed without a byte.
  bool passedQuietly(std::size_t came) {
    if (loop_.now() < end_) return false;
    if (came == before_) return true;
    before_ = came;
    end_ = loop_.now() + length_;
    return false;
  }

 private:
  const EventLoop& loop_;
  Instant length_;
  Instant end_ = kNever;
  std::size_t before_ = 0;
};

void startWatchdog(Exchange& exchange, double milliseconds) {
  exchange.timedOut = false;
  exchange.Timer1.setEnabled(false);
  if (milliseconds <= 0) return;
  exchange.Timer1.setInterval(milliseconds);
  exchange.Timer1.setEnabled(true);
}

bool watchdogEnds(const Exchange& exchange, const Patience& patience) {
  return exchange.timedOut || (patience.watchdogMs > 0 && !exchange.Timer1.enabled());
}

TransferEnd gatherBytes(Main& main, std::size_t wanted, const Patience& patience, const Progress& progress,
                        std::string& bytes) {
  const Stay stay(main);
  const Port port = portOf(main);
  Exchange& exchange = main.exchange;
  Windows windows(main.around.loop, patience.windowMs);
  while (bytes.size() < wanted) {
    const std::int32_t count = CommRead(port, main.link.commPort, exchange.replyBuffer, kReadSize);
    bytes += exchange.replyBuffer;
    if (count > 0 && progress) progress(bytes.size());
    if (!goesOn(main, stay)) return TransferEnd::Cancelled;
    if (count < 0) return TransferEnd::Closed;
    if (watchdogEnds(exchange, patience)) return TransferEnd::TimedOut;
    if (windows.passedQuietly(bytes.size())) return TransferEnd::Quiet;
    if (count == 0) CommAwait(port, main.link.commPort, windows.end());
  }
  return TransferEnd::Whole;
}

// Stray bytes ahead of a frame push its last ones out of the count: what is still to come is taken as well.
void takeStrays(Main& main, std::string& bytes) {
  bytes += receive(main, kEverything, {.watchdogMs = kLongestStrayMs, .windowMs = kStrayMs}).bytes;
  forgetAbandonedReply(main);
}

}  // namespace

Transfer receive(Main& main, std::size_t wanted, const Patience& patience, const Progress& progress) {
  Exchange& exchange = main.exchange;
  Transfer transfer;
  exchange.replyBuffer.clear();
  startWatchdog(exchange, patience.watchdogMs);
  ++exchange.gathering;
  transfer.end = gatherBytes(main, wanted, patience, progress, transfer.bytes);
  --exchange.gathering;
  exchange.Timer1.setEnabled(false);
  if (transfer.end != TransferEnd::Whole) exchange.replyAbandoned = true;
  exchange.lastFailure = failureOf(transfer);
  return transfer;
}

bool goesOn(const Main& main, const Stay& stay) {
  return stay.stands() && main.pages.dataPageActive;
}

bool drainLine(Main& main, const LogControls& controls) {
  const Stay stay(main);
  if (main.exchange.replyAbandoned) {
    const ShownTransfer shown(main, controls);
    receive(main, kEverything, kRunOut);
    if (!goesOn(main, stay)) return false;
  }
  receive(main, kEverything, {.watchdogMs = kDrainMs});
  if (!goesOn(main, stay)) return false;
  main.exchange.timedOut = false;
  forgetAbandonedReply(main);
  flushPort(main);
  return true;
}

ShownTransfer::ShownTransfer(Main& main, const LogControls& controls)
    : main_(main),
      controls_(controls),
      stay_(main),
      held_({&main.frame.measBtn, &main.frame.ScopeBtn, &main.frame.ChartBtn, &main.frame.outletsBtn,
             &main.frame.dataBtn, &main.frame.setupBtn, &main.frame.helpBtn}) {
  (main.data.*controls.button).setTexts(dictText(main, kKeyDownloading));
  if (controls.clear) (main.data.*controls.clear).setVisible(false);
  setProgressVisible(true);
}

// On a page that was left, or opened again meanwhile, nothing is left to put back but the page buttons.
ShownTransfer::~ShownTransfer() {
  if (!stay_.stands()) return;
  (main_.data.*controls_.button).setTexts(dictText(main_, controls_.captionKey));
  setProgressVisible(false);
  if (controls_.clear) (main_.data.*controls_.clear).setVisible(true);
}

void ShownTransfer::show(std::size_t came, std::size_t total) {
  if (!stay_.stands()) return;
  const double percent = static_cast<double>(came) / static_cast<double>(total) * 100;
  main_.data.dataProgSlide.setValue(std::min(percent, 100.0));
}

void ShownTransfer::showWork(std::size_t captionKey) {
  setProgressVisible(false);
  (main_.data.*controls_.button).setTexts(dictText(main_, captionKey));
}

void ShownTransfer::setProgressVisible(bool on) {
  main_.data.dataProgSlide.setValue(0);
  main_.data.dataProgSlide.setVisible(on);
  main_.data.cancelDataBtn.setVisible(on);
}

std::optional<std::string> downloadFrame(Main& main, const LogControls& controls,
                                         const DeviceCommand& command, FrameCheck beginsRight) {
  const auto wanted = static_cast<std::size_t>(command.replyBytes);
  const Stay stay(main);
  if (!sendText(main, command.text)) return std::nullopt;
  ShownTransfer shown(main, controls);
  Transfer transfer = receive(main, wanted, {.watchdogMs = command.timeoutMs},
                              [&](std::size_t came) { shown.show(came, wanted); });
  if (transfer.end != TransferEnd::Whole) {
    if (goesOn(main, stay)) main.exchange.shortfall = shortfallText(main, transfer.bytes.size(), wanted);
    return std::nullopt;
  }
  const auto frame = std::string_view(transfer.bytes).substr(transfer.bytes.size() - wanted);
  if (!beginsRight(frame)) takeStrays(main, transfer.bytes);
  if (!goesOn(main, stay)) return std::nullopt;
  transfer.bytes.erase(0, transfer.bytes.size() - wanted);
  return std::move(transfer.bytes);
}

std::string shortfallText(const Main& main, std::size_t came, std::size_t wanted) {
  if (came == 0 || came >= wanted) return {};
  return filledText(dictText(main, words::kBytesCame), {std::to_string(came), std::to_string(wanted)});
}

bool endWithoutLog(Main& main, const Stay& stay) {
  if (!stay.stands()) return true;
  main.exchange.Timer1.setEnabled(false);
  if (!main.pages.dataPageActive) return true;
  if (main.link.connected) return false;
  main.around.dialogs.message(dictText(main, kKeyNotRead), std::exchange(main.exchange.shortfall, {}));
  return true;
}

}  // namespace zephon
