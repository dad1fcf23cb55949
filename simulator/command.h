#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/device.h"

namespace zephon::simulator {

// What a device says to a command. Nothing: it refuses, and stays silent.
using Answer = std::optional<std::string>;

enum class Access { Read, Write };

// One command of a line's dialogue.
struct Command {
  std::string_view text;  // the characters that call it
  int dataBytes;          // how many more bytes follow
  Access access;
  std::string_view since;    // the oldest firmware that knows it; empty: every one
  std::string_view meaning;  // for people
  Answer (*run)(Device& device, std::string_view data);
};

// The whole dialogue of a line, a row for each command.
std::span<const Command> commandsOf(Line line);
// Those that the firmware at hand knows.
std::vector<Command> knownCommands(const Profile& profile);
// The table for people: a line for each command.
std::string commandListing(Line line);

}  // namespace zephon::simulator
