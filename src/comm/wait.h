#pragma once

#include "platform/event_loop.h"

namespace zephon {

// The pause between commands: runs the loop once, then sleeps in it until `milliseconds` have passed since
// the call. Timers and clicks are served meanwhile. Ends as soon as `ending` is set: the program is closing.
void wait(EventLoop& loop, const bool& ending, double milliseconds);

}  // namespace zephon
