#include "simulator/command.h"

#include "simulator/orvantis_commands.h"
#include "simulator/tessara_commands.h"

namespace zephon::simulator {
namespace {

std::string padded(std::string text, std::size_t width) {
  if (text.size() < width) text.resize(width, ' ');
  return text;
}

std::string listingRow(const Command& command) {
  const std::string data = command.dataBytes == 0 ? "" : "+" + std::to_string(command.dataBytes);
  const std::string since = command.since.empty() ? "" : " (from " + std::string(command.since) + ")";
  return padded(std::string(command.text), 3) + padded(data, 5) +
         (command.access == Access::Read ? "read   " : "write  ") + std::string(command.meaning) + since +
         "\n";
}

}  // namespace

std::span<const Command> commandsOf(Line line) {
  return line == Line::Orvantis ? orvantisCommands() : tessaraCommands();
}

std::vector<Command> knownCommands(const Profile& profile) {
  std::vector<Command> known;
  for (const Command& command : commandsOf(profile.line)) {
    if (profile.version() >= command.since) known.push_back(command);
  }
  return known;
}

std::string commandListing(Line line) {
  std::string text;
  for (const Command& command : commandsOf(line)) text += listingRow(command);
  return text;
}

}  // namespace zephon::simulator
