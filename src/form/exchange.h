#pragma once

#include <string>

#include "platform/timer.h"

namespace zephon {

// Why an exchange with the device failed.
enum class ExchangeFailure {
  None,
  Closed,      // the port is not open, or refused the write
  TimedOut,    // nothing came before the watchdog
  ShortReply,  // some bytes came, too few before the watchdog
  Refused,     // the device answered something else
  Cancelled,   // another exchange took the line, the page was left, or the program is closing
};

// State shared by all exchanges.
struct Exchange {
  explicit Exchange(EventLoop& loop) : Timer1(loop) {}

  std::string replyBuffer;  // the command during the write, then each chunk read
  bool timedOut = false;    // set by Timer1's tick
  Timer Timer1;             // the one watchdog of all exchanges
  ExchangeFailure lastFailure = ExchangeFailure::None;
  std::size_t bytesCame = 0;    // of the reply that was asked for last
  int gathering = 0;            // exchanges that wait for a reply, one inside the other
  int writesInFlight = 0;       // the device waits for the rest of what is being written
  bool replyAbandoned = false;  // a reply was given up and may still be on its way
  Instant abandonedAt{};        // when that was
  std::string shortfall;  // what the message of a failure says more: how much came of a log; mostly empty
};

}  // namespace zephon
