#pragma once

#include "simulator/command.h"

namespace zephon::simulator {

std::span<const Command> tessaraCommands();

}  // namespace zephon::simulator
