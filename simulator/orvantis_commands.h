#pragma once

#include "simulator/command.h"

namespace zephon::simulator {

std::span<const Command> orvantisCommands();

}  // namespace zephon::simulator
