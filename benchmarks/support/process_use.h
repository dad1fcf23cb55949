#pragma once

#include <sys/types.h>

#include "platform/event_loop.h"

namespace zephon::benchmarks {

// Processor time that this process has used, the system's on its behalf included.
Millis processorTime();

// How often all threads of a process have gone to sleep so far, and so woken.
long wakeUps(pid_t process);

}  // namespace zephon::benchmarks
