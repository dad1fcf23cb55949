#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "form/counters.h"
#include "form/limits.h"
#include "text/calendar.h"

namespace zephon {

// The memory image of the second line's controller. It comes as 256 times one data character and ".", where
// the character's code is 48 more than its byte.
//   0          not read
//   1-240      60 event records of four bytes
//   241-252    four counters of three bytes, lowest first: under voltage, over voltage, outages, surges
//   253        place of the next record, in bytes
//   254, 255   the limits (limit_codes.h)

inline constexpr std::size_t kImageCharacters = 512;
inline constexpr std::size_t kImageRecords = 60;

// The image from its characters; nothing when an element is missing or empty.
std::optional<PicImage> decodeImage(std::string_view characters);

std::uint8_t imageByte(const PicImage& image, std::size_t index);

// How often each class was seen. The three bytes of a counter are read as BCD and joined without leading
// zeros, highest first: 00 01 05 is 15, 00 10 05 is 105.
struct ImageCounts {
  std::int32_t uvreCount = 0;
  std::int32_t ovreCount = 0;
  std::int32_t poCount = 0;
  std::int32_t sgCount = 0;
  std::int32_t total() const { return uvreCount + ovreCount + poCount + sgCount; }
};
ImageCounts imageCounts(const PicImage& image);

// Record 0 to 59: seconds and minutes in BCD, then the class in two bits, tens of hours in two and hours in
// four, then days in BCD. No date yet.
PdEvent imageEvent(const PicImage& image, std::size_t record, std::span<const std::string> dict);

// A span of time as days, hours, minutes and seconds.
struct EventSpan {
  int days = 0;
  int hours = 0;
  int minutes = 0;
  int seconds = 0;
};
// The reply that tells the time since the newest event: four data characters with "." between them, each BCD.
// Nothing when one is missing or no decimal number.
std::optional<EventSpan> decodeEventSpan(std::string_view reply);

// Dates the first `count` rows, of which the last is the newest: `sinceNewest` before `present`, then each
// the interval of its successor earlier. False when a date falls outside the years 100 to 9999.
bool dateEvents(PdEvents& events, std::size_t count, const EventSpan& sinceNewest,
                const CalendarTime& present);

}  // namespace zephon
