#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace zephon {

// The records of a log, read from the first to the last while blank ones are taken out from among them. A
// blank is as many 0xFF bytes in a row as a record has bytes, wherever they begin; taking it out moves all
// behind it up. Nothing is copied: the places of the blanks are noted.
class LogRecords {
 public:
  // Records of at most 16 bytes. The data has to outlive this.
  LogRecords(std::string_view data, std::size_t recordBytes) : data_(data), recordBytes_(recordBytes) {}

  // The record at an index in the data as it stands now; indices never go down. The record has to lie
  // within the data: the count of records less those taken out. Stands until the next call.
  const std::uint8_t* record(std::size_t index);

  // Takes the first blank in the data out; does nothing when there is none.
  void removeFirstBlank();

 private:
  const std::uint8_t* joinedRecord(std::size_t offset);

  std::string_view data_;
  std::size_t recordBytes_;
  std::vector<std::size_t> seams_;  // where blanks were, as offsets in what is left, ascending
  std::size_t passed_ = 0;          // seams at or before the last record's start
  std::size_t searched_ = 0;        // how far `data_` has been searched for blanks
  std::array<std::uint8_t, 16> joined_{};
};

// Walks a log's records: `take` is given each and says false for a blank one. Then the first blank in the
// data goes, the count is one less, and the same place is tried again.
template <class Take>
void walkRecords(std::string_view data, std::size_t recordBytes, std::size_t count, Take take) {
  LogRecords records(data, recordBytes);
  for (std::size_t i = 0; i < count;) {
    if (take(records.record(i))) {
      ++i;
    } else {
      records.removeFirstBlank();
      --count;
    }
  }
}

// Whether a wrap flag stands here and behind it an address within a log of that size.
bool beginsLog(std::string_view flagAndAddress, std::int32_t logStart, std::size_t logBytes);

// How many records stand in a log, at most `most`: the wrap flag's number decides between the write address,
// counted from where the log begins, and all.
std::size_t recordCount(std::string_view flagAndAddress, std::int32_t logStart, std::size_t recordBytes,
                        std::size_t most);

}  // namespace zephon
