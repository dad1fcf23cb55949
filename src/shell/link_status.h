#pragma once

#include <string>

#include "form/main.h"

namespace zephon {

// The link's state in one line, always in sight: port, model, firmware, chip and name, or why there is none.
void showLinkState(Main& main);
void showConnecting(Main& main);
// The port can't be opened: the system's words and what to do.
void showLinkFailure(Main& main, const std::string& error, const std::string& advice);
// The link was up, or the port was, and the device stopped answering.
void showLinkLost(Main& main, ExchangeFailure why);

}  // namespace zephon
