#include "comm/wait.h"

namespace zephon {

void wait(EventLoop& loop, const bool& ending, double milliseconds) {
  const Instant end = loop.now() + fromMillis(milliseconds);
  loop.runOnce();
  while (!ending && loop.now() < end) loop.sleepUntil(end);
}

}  // namespace zephon
