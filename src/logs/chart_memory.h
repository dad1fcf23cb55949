#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "form/logs.h"
#include "protocol/device_date.h"

namespace zephon {

// The device's chart memory: a sample of all quantities every ten seconds, read page by page.

// The pages: the high 16 bits of a 24-bit address, as hex digits. The two bytes that they name follow "g`".
inline constexpr std::array<std::string_view, 12> kChartPages = {
    "0200", "0280", "0300", "0380", "0400", "0480", "0500", "0580", "0600", "0680", "0700", "0780"};
inline constexpr std::size_t kChartPageBytes = 32768;
inline constexpr std::size_t kChartReplyBytes = 32770;  // two bytes of header before the page

// How large the memory is, and the bytes that count as the whole of it.
struct ChartMemory {
  std::size_t pages = 12;
  std::size_t bytes = 393217;
  bool operator==(const ChartMemory&) const = default;
};

// The page of a reply, which may have bytes too many; nothing for one that has too few.
std::optional<std::string_view> chartPage(std::string_view reply);

// The memory by the second byte of the first page's reply: "2" is 4 pages; "4", and anything else, 12.
ChartMemory chartMemoryOf(std::string_view firstReply);

// The last 20 bytes of what has been read are all 0xFF: the memory behind it is empty.
bool chartMemoryEnds(std::string_view stream);

// The rows of the joined pages, up to "END", three 0xFF bytes on end (at the start of a block or within a
// sample), a mark whose date is none, or the end of the stream. Blocks follow each other without gaps:
//   mark, 9 bytes
//     0-2    "STR" started, "CDF" clock changed, "PWR" power came back
//     3-8    hour, minute, second, month, day, year since 2000, in universal time, as their hex digits stand
//   sample, 20 bytes, 10 seconds after the one before it, or after the mark
//     0-1    voltage, 512 V full scale, 2 decimals
//     2-3    current, 256 A, 3 decimals
//     4-5    power, signed, 262144 W, 1 decimal
//     6-8    neutral-ground voltage, 65536 V, 3 decimals
//     9-11   frequency, 8000 Hz, 2 decimals
//     12     power factor, signed, 2 full scale, 3 decimals
//     13     its letter, not read
//     14     crest factor, whole part in BCD
//     15     crest factor, fraction, signed, 3 decimals
//     16-19  energy, 8.24 bits, in units of 232 kWh, 4 decimals
// Signed fields are in ones' complement. A gap in power becomes two rows that repeat the last sample, one
// second after it and nine seconds after the power came back, so that a chart shows a step and no slant.
LogTable<9> decodeChartMemory(std::string_view stream, UtcOffset offset);

}  // namespace zephon
