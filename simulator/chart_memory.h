#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "simulator/profile.h"
#include "simulator/site.h"

namespace zephon::simulator {

// The chart memory of a first-line device: blocks one behind the other.
//   Mark, 9 bytes: "STR" recording started, "CDF" the clock was set, "PWR" power came back; then hour,
//     minute, second, month, day, year since 2000 (BCD, universal time).
//   Sample, 20 bytes, taken every ten seconds from the mark before it:
//     0 volts of 512   2 amps of 256   4 watts of 262144, signed   6 neutral-ground volts of 65536 (3 bytes)
//     9 hertz of 8000 (3 bytes)   12 power factor of 2, signed   13 its letter
//     14 crest factor, its nearest whole number, BCD   15 what remains of it, of 1, signed
//     16 energy in units of 232 kWh, 8 bits before the point and 24 behind it
// All fractions have the high byte first. When a sample would not leave room for it, the memory ends with
// "END" and the recording stops; a mark without room is left out. Erased memory is 0xFF.
//
// Times are seconds since the loop's start.
class ChartMemory {
 public:
  explicit ChartMemory(ChartFitted fitted);

  // Erases all and begins, at a clock's time. Nothing happens without a memory fitted.
  void start(double now, std::int64_t clock);
  void clockSet(double now, std::int64_t clock);
  void powerLost() { paused_ = true; }
  void powerBack(double now, std::int64_t clock);

  bool recording() const { return recording_; }
  // When the next sample is due; far in the future while there is none.
  double nextSample() const;
  // Takes the sample that is due.
  void sample(const SiteValues& seen, double kilowattHours);

  // A page as it goes over the line, 32770 bytes: "M", "2" for a memory of 4 pages or "4" for one of 12, and
  // 32768 bytes from the address whose two upper bytes are given; 0x0200 is the first page. Behind the memory
  // everything reads 0xFF. Nothing without a memory, and below its first address.
  std::optional<std::string> page(int upperAddress) const;

  // Adds any bytes as they are.
  void store(std::string_view block);

 private:
  void mark(std::string_view name, double now, std::int64_t clock);

  std::size_t size_;
  char sizeLetter_;
  std::string bytes_;
  bool recording_ = false;
  bool paused_ = false;  // no power
  double nextSample_ = 0;
};

}  // namespace zephon::simulator
