#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "simulator/event.h"
#include "simulator/limits.h"

namespace zephon::simulator {

// The event classes that a second-line device counts, with the two class bits of their records.
enum class ImageEvent : int { UnderVoltage = 0, OverVoltage = 1, Outage = 2, Surge = 3 };
// The class of an event; overloads have none.
std::optional<ImageEvent> imageEvent(Event event);

// The 256 bytes of memory of a second-line device's controller.
//   0          not used
//   1..240     a ring of 60 event records of four bytes
//                seconds BCD, minutes BCD, class (2 bits) tens of hours (2 bits) hours (4 bits), days BCD:
//                the time that passed between the event and the one before it
//   241..252   four counters of three BCD bytes, the lowest first: under voltage, over voltage, outage, surge
//   253        where the next record goes, in bytes from the first
//   254, 255   the limits (LimitBytes)
class MemoryImage {
 public:
  static constexpr int kSize = 256;
  static constexpr int kRecords = 60;

  explicit MemoryImage(LimitBytes limits);

  std::uint8_t at(int index) const { return bytes_[static_cast<std::size_t>(index)]; }
  // For tests, which may want any memory whatever.
  void poke(int index, std::uint8_t byte) { bytes_[static_cast<std::size_t>(index)] = byte; }

  LimitBytes limits() const { return {at(254), at(255)}; }
  int count(ImageEvent event) const;
  // Writes a record and counts the event. Days beyond 99 are told as 99.
  void record(ImageEvent event, std::int64_t secondsSinceLast);
  // Forgets counts and records; the limits stay.
  void clear();

  // The dump: 256 times one data character and ".".
  std::string dump() const;

 private:
  std::array<std::uint8_t, kSize> bytes_{};
};

// The character that stands for a byte on a second-line device's wire: its code is 48 more. Byte 0xFE, whose
// character would be the separator ".", has none; it goes out as 0xFF.
char imageCharacter(std::uint8_t byte);
// The reverse.
std::uint8_t imageByte(char character);

// A span of time as four characters with "." between them: days, hours, minutes, seconds, BCD.
std::string imageSpan(std::int64_t seconds);

}  // namespace zephon::simulator
