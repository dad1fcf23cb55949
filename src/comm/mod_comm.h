#pragma once

#include <cstdint>
#include <string>

#include "comm/port.h"

namespace zephon {

// The port layer: the only code that calls the serial device. It keeps the table of open ports and knows
// nothing of what is said over them. No call shows a message or throws: each answers a status and leaves the
// details in the table's lastCommError.
//
// A port id is its COM number, 1 to 256. Every call but CommGetError answers 9 to any other id, with the
// message "Subscript out of range" and its own name as the source; for CommRead and CommWrite that 9 looks
// like a count, and stays so.
//
// CommRead and CommWrite turn the event loop, so timers and clicks run inside them and may flush, close or
// use the very same port. Nothing is locked.

// Opens `name` ("COM" and the number) with `settings` ("baud=9600 parity=N data=8 stop=1"). 0, or the error
// code: -1 for "Port in use.". Only the device's own refusal leaves the port closed. A later step that fails
// rolls nothing back: the port counts as open until CommClose.
std::int32_t CommOpen(const Port& port, std::int16_t id, const std::string& name,
                      const std::string& settings);

// 0, or the error code with the port still open. A port that is not open is none of its business: 0.
std::int32_t CommClose(const Port& port, std::int16_t id);

// Drops what waits in both directions. 0, or the error code. Asks the device even for a port that was closed.
std::int32_t CommFlush(const Port& port, std::int16_t id);

// Takes what has arrived, up to 1024 bytes, any values. The count, 0 if nothing waits, -1 on failure; `out`
// is emptied first. `maximum` is how much the caller expects at the most, and holds nothing back: a longer queue
// is taken whole. One pass of the loop before it looks.
std::int32_t CommRead(const Port& port, std::int16_t id, std::string& out, std::int32_t maximum);

// Writes all of `bytes`. The count written, -1 on failure. One pass of the loop after the write, and ten more
// when it succeeded.
std::int32_t CommWrite(const Port& port, std::int16_t id, const std::string& bytes);

// Lines of CommSetLine.
inline constexpr std::int16_t kLineBreak = 1;
inline constexpr std::int16_t kLineDtr = 2;
inline constexpr std::int16_t kLineRts = 3;

// 0, or the error code. Any other line is the device's to refuse.
std::int32_t CommSetLine(const Port& port, std::int16_t id, std::int16_t line, bool state);

// The last failure's code; `out` becomes "Error (<code>): <source> - <message>".
std::int32_t CommGetError(const PortTable& table, std::string& out);

// The pause between two reads of the exchange loops, which collect a reply until it is whole or their
// watchdog ticks: sleeps in the loop until the port has bytes to read (Readable, at once when some wait), a
// timer or the user was served (Served), or the deadline passed. A line that hung up can always be read and
// has nothing: it is not watched, so that no loop spins on it until its watchdog ticks.
Woke CommAwait(const Port& port, std::int16_t id, Instant deadline = kNever);

}  // namespace zephon
