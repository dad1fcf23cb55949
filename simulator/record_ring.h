#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace zephon::simulator {

// A log of records of one size in a stretch of the device's memory. The newest goes behind the one before it;
// when the end is reached the oldest are written over, from the start. Erased memory is 0xFF.
class RecordRing {
 public:
  RecordRing(std::size_t recordBytes, std::size_t records, std::uint32_t firstAddress)
      : recordBytes_(recordBytes), records_(records), firstAddress_(firstAddress) {}

  // A record that is too short or too long is filled up with 0xFF or cut.
  void write(std::string_view record);
  // Leaves the next place erased.
  void leaveBlank() { write({}); }
  void clear();

  bool wrapped() const { return wrapped_; }
  // How many places have been used; all of them once it has wrapped.
  std::size_t used() const { return bytes_.size() / recordBytes_; }

  // As it goes over the line:
  //   0    "1" if it has wrapped, otherwise "0"
  //   1-3  the address at which the next record goes, high byte first
  //   4    all places, in the order of the memory
  std::string frame() const;

 private:
  std::size_t recordBytes_;
  std::size_t records_;
  std::uint32_t firstAddress_;
  std::size_t next_ = 0;
  bool wrapped_ = false;
  std::string bytes_;  // as far as it has been used
};

}  // namespace zephon::simulator
