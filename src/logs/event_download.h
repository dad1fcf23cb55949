#pragma once

#include "form/main.h"

namespace zephon {

// Brings the log of events from the device into tsData and shows it. The first line's comes as one frame,
// whose bytes stay in rawLogBuffer; the second line's table of the last 60 events stands in for it.
//
// True when the screen and the tables were left in order: the log is shown, or the user has ended the
// download. False when an exchange failed while the page was wanted; Exchange::shortfall then tells how much
// came. The history goes with the old log, whatever happens.
bool getTSdata(Main& main);

}  // namespace zephon
