#pragma once

#include <string>

#include "form/main.h"

namespace zephon {

// The link's state in one line, always in sight: port, model, firmware, chip and name, or why there is none.
void showLinkState(Main& main);
void showConnecting(Main& main);
// The port can't be opened: the system's words and what to do.
void showLinkFailure(Main& main, const std::string& error, const std::string& advice);

// What is known about a link that failed while it was wanted: its state, and what a person can do about it.
struct LostLink {
  std::string state;
  std::string advice;
};
// A port that is gone is told in the system's own words; ask before it is closed.
LostLink lostLink(const Main& main, ExchangeFailure why);
void showLinkLost(Main& main, const LostLink& lost);

}  // namespace zephon
