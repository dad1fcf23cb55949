#include "protocol/exchange.h"

#include <algorithm>

#include "comm/mod_comm.h"
#include "comm/wait.h"
#include "protocol/encodings.h"
#include "protocol/visit.h"
#include "text/strings.h"

namespace zephon {
namespace {

constexpr std::int32_t kReplyRead = 100;
constexpr std::int32_t kSettleRead = 1024;
// A cable may hold bytes back for 16 ms; the longest reply takes ten seconds, that to a short command a
// moment.
constexpr double kQuietMs = 50;
constexpr double kShortReplyMs = 200;
constexpr int kMostLate = 4;  // as often as a reading is tried
constexpr double kLongestReplyMs = 12'000;

bool portIsOpen(const Main& main) {
  const auto id = static_cast<std::size_t>(main.link.commPort);
  return id >= 1 && id <= main.link.table.ports.size() && main.link.table.ports[id - 1].open;
}

std::nullopt_t fail(Main& main, ExchangeFailure why) {
  main.exchange.Timer1.setEnabled(false);
  main.exchange.lastFailure = why;
  return std::nullopt;
}

// Counts the exchanges that wait for a reply. One that ends without its reply leaves it on the line.
class Gathering {
 public:
  Gathering(Exchange& exchange, const EventLoop& loop) : exchange_(exchange), loop_(loop) {
    ++exchange_.gathering;
  }
  ~Gathering() {
    --exchange_.gathering;
    if (!whole) {
      exchange_.replyAbandoned = true;
      exchange_.abandonedAt = loop_.now();
    }
  }
  Gathering(const Gathering&) = delete;
  Gathering& operator=(const Gathering&) = delete;
  bool whole = false;

 private:
  Exchange& exchange_;
  const EventLoop& loop_;
};

// Collects what arrives until the line has been quiet for so long, or for the longest wait on a line that never is.
// False when the visit is over by then.
bool runOut(Main& main, const PageVisit& visit, double quietMs, double longestMs, std::string& gathered) {
  const EventLoop& loop = main.around.loop;
  const Port port = portOf(main);
  const Instant end = loop.now() + fromMillis(longestMs);
  Instant quiet = loop.now() + fromMillis(quietMs);
  while (loop.now() < std::min(quiet, end) && portIsOpen(main)) {
    std::string chunk;
    if (CommRead(port, main.link.commPort, chunk, kSettleRead) > 0) quiet = loop.now() + fromMillis(quietMs);
    gathered += chunk;
    if (!stands(main, visit)) return false;
    CommAwait(port, main.link.commPort, quiet);
  }
  forgetAbandonedReply(main);
  return stands(main, visit);
}

std::optional<std::string> gatherFor(Main& main, PageVisit visit, double timeoutMs, std::int32_t readSize,
                                     const Complete& complete) {
  const double lateMs = std::min(timeoutMs, kShortReplyMs) + kQuietMs;
  const bool mayBeLate =
      main.exchange.replyAbandoned && main.around.loop.now() < main.exchange.abandonedAt + fromMillis(lateMs);
  Gathering state(main.exchange, main.around.loop);
  Exchange& exchange = main.exchange;
  const Port port = portOf(main);
  std::string gathered;
  bool unreadable = false;  // the line gave an error, not silence
  exchange.replyBuffer.clear();
  exchange.Timer1.setEnabled(false);
  exchange.Timer1.setInterval(timeoutMs);
  exchange.Timer1.setEnabled(true);
  while (!complete(gathered)) {
    const std::int32_t count = CommRead(port, main.link.commPort, exchange.replyBuffer, readSize);
    gathered += exchange.replyBuffer;
    exchange.bytesCame = gathered.size();
    if (!stands(main, visit)) return fail(main, ExchangeFailure::Cancelled);
    if (exchange.timedOut && unreadable) return fail(main, ExchangeFailure::Closed);
    if (exchange.timedOut) {
      return fail(main, gathered.empty() ? ExchangeFailure::TimedOut : ExchangeFailure::ShortReply);
    }
    if (!exchange.Timer1.enabled()) return fail(main, ExchangeFailure::Cancelled);
    if (!portIsOpen(main)) return fail(main, ExchangeFailure::Closed);
    unreadable = count < 0;
    if (count <= 0) CommAwait(port, main.link.commPort);  // the watchdog ends it at the latest
  }
  exchange.Timer1.setEnabled(false);
  // The device answers in order: behind a reply that had been given up stands the one that was asked for now.
  if (mayBeLate && !runOut(main, visit, lateMs, kMostLate * lateMs, gathered))
    return fail(main, ExchangeFailure::Cancelled);
  exchange.lastFailure = ExchangeFailure::None;
  state.whole = true;
  return gathered;
}

}  // namespace

Port portOf(Main& main) {
  return {main.link.table, main.around.serial, main.around.loop};
}

void wireWatchdog(Main& main) {
  main.exchange.Timer1.onTick = [&main] {
    main.exchange.timedOut = true;
    flushPort(main);
  };
}

void wait(Main& main, double milliseconds) {
  wait(main.around.loop, main.ending, milliseconds);
}

void flushPort(Main& main) {
  if (portIsOpen(main)) CommFlush(portOf(main), main.link.commPort);
}

void forgetAbandonedReply(Main& main) {
  main.exchange.replyAbandoned = false;
}

bool settleLine(Main& main) {
  const Exchange& exchange = main.exchange;
  const PageVisit visit = main.pages.wanted;
  if (exchange.gathering == 0 && !exchange.replyAbandoned) return true;
  std::string dropped;
  return runOut(main, visit, kQuietMs, kLongestReplyMs, dropped);
}

bool sendText(Main& main, std::string_view text) {
  if (!portIsOpen(main)) {
    main.exchange.lastFailure = ExchangeFailure::Closed;
    return false;
  }
  main.exchange.replyBuffer = text;
  const std::int32_t written = CommWrite(portOf(main), main.link.commPort, std::string(text));
  const bool all = written == static_cast<std::int32_t>(text.size());
  if (!all) main.exchange.lastFailure = ExchangeFailure::Closed;
  return all;
}

std::optional<std::string> gather(Main& main, double timeoutMs, std::int32_t readSize,
                                  const Complete& complete) {
  return gatherFor(main, main.pages.wanted, timeoutMs, readSize, complete);
}

std::optional<std::string> wholeReply(Main& main, const DeviceCommand& command) {
  const PageVisit visit = main.pages.wanted;
  const auto count = static_cast<std::size_t>(command.replyBytes);
  main.exchange.timedOut = false;
  flushPort(main);
  if (!sendText(main, command.text)) return fail(main, ExchangeFailure::Closed);
  return gatherFor(main, visit, command.timeoutMs, kReplyRead,
                   [count](const std::string& gathered) { return gathered.size() >= count; });
}

std::optional<std::string> countedQuery(Main& main, const DeviceCommand& command) {
  auto reply = wholeReply(main, command);
  if (reply) reply->erase(0, reply->size() - static_cast<std::size_t>(command.replyBytes));
  return reply;
}

bool getOK(Main& main) {
  main.exchange.timedOut = false;
  return gather(main, kOkTimeout, kReplyRead,
                [](const std::string& gathered) { return gathered.find("OK") != std::string::npos; })
      .has_value();
}

bool getEcho(Main& main, const std::string& expected) {
  main.exchange.timedOut = false;
  const auto reply = gather(main, kEchoTimeout, kReplyRead,
                            [&](const std::string& gathered) { return gathered.size() >= expected.size(); });
  if (!reply) return false;
  if (*reply != expected) main.exchange.lastFailure = ExchangeFailure::Refused;
  return *reply == expected;
}

std::int32_t getDecimal(Main& main, const DeviceCommand& command) {
  const auto reply = countedQuery(main, command);
  return reply ? decodeDecimal(*reply) : -1;
}

float getUnscaledFraction(Main& main, const DeviceCommand& command, bool isSigned) {
  const auto reply = countedQuery(main, command);
  return reply ? static_cast<float>(unscaledFraction(*reply, isSigned)) : noFraction;
}

WriteInFlight::WriteInFlight(Main& main)
    : main_(main),
      // What could close the port, or open a box, in the middle of a write.
      held_{&main.frame.measBtn,        &main.frame.ScopeBtn,
            &main.frame.ChartBtn,       &main.frame.outletsBtn,
            &main.frame.dataBtn,        &main.frame.setupBtn,
            &main.frame.comBtn,         &main.frame.helpBtn,
            &main.measurement.clrEUbtn, &main.measurement.clrCountBtn,
            &main.com.langCombo} {
  ++main.exchange.writesInFlight;
}

WriteInFlight::~WriteInFlight() {
  if (--main_.exchange.writesInFlight == 0 && main_.closing) main_.ending = true;
}

bool confirmedWrite(Main& main, const DeviceCommand& command, double pauseMs, std::string_view second) {
  {
    const WriteInFlight held(main);
    flushPort(main);
    sendText(main, command.text);
    wait(main, pauseMs);
    sendText(main, second);
    wait(main, 100);
  }
  return getOK(main);
}

}  // namespace zephon
