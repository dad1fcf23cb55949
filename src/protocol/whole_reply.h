#pragma once

#include <optional>
#include <string>

#include "form/main.h"
#include "protocol/commands.h"

namespace zephon {

// One exchange whose reply is searched or split: all that came counts, not its last bytes alone. It ends when
// the command's count of bytes is there; what arrived with them is kept.
std::optional<std::string> wholeReply(Main& main, const DeviceCommand& command);

}  // namespace zephon
