#include "simulator/command_parser.h"

#include <algorithm>
#include <utility>

namespace zephon::simulator {
namespace {

constexpr Instant kQuiet = std::chrono::seconds(1);

}  // namespace

const Command* CommandParser::take(char byte, Instant at) {
  if (at - lastByte_ > kQuiet) reset();
  lastByte_ = at;
  pending_ += byte;
  const Command* command = called();
  if (command == nullptr) {
    if (!couldCall()) reset();
    return nullptr;
  }
  const std::size_t length = command->text.size();
  if (pending_.size() < length + static_cast<std::size_t>(command->dataBytes)) return nullptr;
  heard_ = {at, pending_.substr(0, length), pending_.substr(length)};
  pending_.clear();
  return command;
}

void CommandParser::reset() {
  noise_ += std::exchange(pending_, {});
}

// No command's text starts with another's.
const Command* CommandParser::called() const {
  const auto row = std::find_if(known_.begin(), known_.end(), [this](const Command& command) {
    return pending_.starts_with(command.text);
  });
  return row == known_.end() ? nullptr : &*row;
}

bool CommandParser::couldCall() const {
  return std::any_of(known_.begin(), known_.end(),
                     [this](const Command& command) { return command.text.starts_with(pending_); });
}

}  // namespace zephon::simulator
