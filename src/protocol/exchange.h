#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "comm/port.h"
#include "form/main.h"
#include "protocol/commands.h"
#include "screen/elements_held.h"

namespace zephon {

// One command and its reply. The line has no frames: a command is a few bare characters, the end of a reply
// is known from its length alone, and the last bytes count. A failed exchange shows as too few bytes before
// the watchdog, Timer1, ticks. There are no retries here, no messages, and no failure closes the port. A reply
// that comes after one was given up counts once the line is quiet, so that no late reply passes for it.
//
// An exchange belongs to the page visit in which it began: when the user leaves the page, or the program is
// closing, it ends at once as Cancelled. Why an exchange failed stands in Exchange::lastFailure.

// The port layer of this form.
Port portOf(Main& main);

// Lets Timer1's tick set `timedOut` and flush the port. Once, at start.
void wireWatchdog(Main& main);

// The pause between commands; serves timers and clicks meanwhile, ends at once when the program is closing.
void wait(Main& main, double milliseconds);

void flushPort(Main& main);

// Lets a reply that was given up run out, so that the next command does not take its rest for an answer:
// reads and drops until the line has been quiet for a moment. Does nothing when every reply was waited for.
// False when the visit is over by then.
bool settleLine(Main& main);

// Nothing of a given-up reply can come any more: the line has fallen silent, or has another speed now.
void forgetAbandonedReply(Main& main);

// Sends bare characters. False when the port is closed or takes another count than there are.
bool sendText(Main& main, std::string_view text);

// Gathers what arrives until `complete` says so of all that came, under the watchdog. Nothing on a failure.
// The caller has cleared `timedOut`, flushed and sent.
using Complete = std::function<bool(const std::string& gathered)>;
std::optional<std::string> gather(Main& main, double timeoutMs, std::int32_t readSize,
                                  const Complete& complete);

// Flushes, sends the command and gathers at least as many bytes as its row tells; all that came.
std::optional<std::string> wholeReply(Main& main, const DeviceCommand& command);

// Flushes, sends the command, gathers, and keeps the last bytes that the command's row tells.
std::optional<std::string> countedQuery(Main& main, const DeviceCommand& command);

// True when "OK" arrives in time, whatever stands around it. The caller has written the command.
bool getOK(Main& main);

// True when exactly `expected` arrives in time. The caller has written the command.
bool getEcho(Main& main, const std::string& expected);

// The counted query for a whole number: one byte, or two with the high one first. -1 on failure.
std::int32_t getDecimal(Main& main, const DeviceCommand& command);

// The counted query for a fraction of full scale; noFraction on failure.
float getUnscaledFraction(Main& main, const DeviceCommand& command, bool isSigned);

// Holds the page buttons, and the program's end, while a write of several parts is under way: a device left
// in the middle of one would take the next command's first byte for the missing value.
class WriteInFlight {
 public:
  explicit WriteInFlight(Main& main);
  ~WriteInFlight();
  WriteInFlight(const WriteInFlight&) = delete;
  WriteInFlight& operator=(const WriteInFlight&) = delete;

 private:
  Main& main_;
  ElementsHeld held_;
};

// The write that the device wants confirmed: command, pause, second text, pause, "OK".
bool confirmedWrite(Main& main, const DeviceCommand& command, double pauseMs, std::string_view second);

}  // namespace zephon
