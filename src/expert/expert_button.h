#pragma once

#include <optional>

#include "form/main.h"

namespace zephon {

// The one door to the expert analysis.

// The log that is to be analysed, by what is on the screen and what is held: None when there is nothing that
// can be, and nothing at all when there is not even something to report on.
std::optional<ShownLog> logToAnalyse(const Main& main);

// Analyses that log, after asking for the line voltage where that counts, and tells what was found: in the
// list beside the log, and by the report if there is one.
void analyse(Main& main);

// Wires expertBtn, which acts when it is let go, and findingsList.
void wireExpert(Main& main);

}  // namespace zephon
