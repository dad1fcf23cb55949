#pragma once

#include "form/main.h"

namespace zephon {

// detectComBtn: asks on every COM number, as the first model line and then as the second, until a conditioner
// answers. comNumEdit takes its number; saving that is the user's. Whatever else hangs on a port hears the
// two commands too. The search is long only where ports stand and nobody answers: 0.2 s for each.

// Runs the search to its end, with everything closed before and after. It goes on in the event loop; a press
// of the button that is still on, or leaving the page, stops it.
void searchPorts(Main& main);

// Ends a search that is under way at once, and puts the page back; does nothing without one.
void stopSearch(Main& main);

}  // namespace zephon
