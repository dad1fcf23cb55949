#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "form/counters.h"
#include "form/limits.h"
#include "form/logs.h"
#include "protocol/device_date.h"

namespace zephon {

// The log of power quality events.

// The reply to "gE":
//   0      wrap flag, a digit: "0" the log has not wrapped, "1" it has
//   1-3    write address, high byte first; the log begins at 110592
//   4-     512 records of 8 bytes, and as many bytes behind them, which move up where blank ones are taken out
inline constexpr std::size_t kEventFrameBytes = 8196;

// Whether a frame has a flag and an address of the log where they belong.
bool beginsAsEvents(std::string_view frame);

// The frame's rows in the order of the device's memory: a wrapped log is not rotated. Blank records are left
// out. A record:
//   0 event code   1 year   2 day   3 month   4 second   5 minute   6 hour   7 magnitude
// with the date in BCD and universal time. The magnitude counts on a 120 V line and is scaled to the nominal
// voltage, but for an overload, a current. Nothing for a frame of another length.
std::optional<LogTable<8>> decodeEventFrame(std::string_view frame, int nominalVolts, UtcOffset offset);

// The second line's table of events, rotated and complete, as the log that this line lacks. There are as many
// rows as the line's four counters count, at most 60, and row i is row count - 1 - i of the table. The
// magnitude of an under or over voltage is the limit that it crossed. Nothing when a row's date does not read
// "month/day/year hour:minute:second".
std::optional<LogTable<8>> eventsOfTable(const PdEvents& events, const Counters& counters,
                                         const Limits& limits, std::span<const std::string> dict);

}  // namespace zephon
