#include "protocol/whole_reply.h"

#include "protocol/exchange.h"

namespace zephon {
namespace {

constexpr std::int32_t kReplyRead = 100;

}  // namespace

std::optional<std::string> wholeReply(Main& main, const DeviceCommand& command) {
  const auto enough = static_cast<std::size_t>(command.replyBytes);
  main.exchange.timedOut = false;
  flushPort(main);
  if (!sendText(main, command.text)) return std::nullopt;
  return gather(main, command.timeoutMs, kReplyRead,
                [enough](const std::string& gathered) { return gathered.size() >= enough; });
}

}  // namespace zephon
