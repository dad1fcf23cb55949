#include "logs/log_records.h"

#include <algorithm>

#include "text/number.h"

namespace zephon {
namespace {

constexpr std::uint8_t kBlank = 0xFF;

std::uint8_t byteAt(std::string_view text, std::size_t i) {
  return static_cast<std::uint8_t>(text[i]);
}

std::int32_t writeAddress(std::string_view flagAndAddress) {
  return byteAt(flagAndAddress, 1) << 16 | byteAt(flagAndAddress, 2) << 8 | byteAt(flagAndAddress, 3);
}

}  // namespace

const std::uint8_t* LogRecords::record(std::size_t index) {
  const std::size_t offset = index * recordBytes_;
  while (passed_ < seams_.size() && seams_[passed_] <= offset) ++passed_;
  if (passed_ < seams_.size() && seams_[passed_] < offset + recordBytes_) return joinedRecord(offset);
  return reinterpret_cast<const std::uint8_t*>(data_.data()) + offset + passed_ * recordBytes_;
}

// A record with a seam inside it.
const std::uint8_t* LogRecords::joinedRecord(std::size_t offset) {
  std::size_t seams = passed_;
  for (std::size_t i = 0; i < recordBytes_; ++i) {
    while (seams < seams_.size() && seams_[seams] <= offset + i) ++seams;
    joined_[i] = byteAt(data_, offset + i + seams * recordBytes_);
  }
  return joined_.data();
}

// The byte before a blank is none of 0xFF, or the blank would begin there. So what is left of a longer run
// joins nothing before it, and the search goes on behind the blank.
void LogRecords::removeFirstBlank() {
  while (searched_ < data_.size()) {
    const std::size_t start = std::min(data_.find(static_cast<char>(kBlank), searched_), data_.size());
    std::size_t end = start;
    while (end < data_.size() && end - start < recordBytes_ && byteAt(data_, end) == kBlank) ++end;
    searched_ = std::max(end, start);
    if (end - start < recordBytes_) continue;
    seams_.push_back(start - seams_.size() * recordBytes_);
    return;
  }
}

bool beginsLog(std::string_view flagAndAddress, std::int32_t logStart, std::size_t logBytes) {
  const std::int32_t written = writeAddress(flagAndAddress) - logStart;
  return (flagAndAddress[0] == '0' || flagAndAddress[0] == '1') && written >= 0 &&
         static_cast<std::size_t>(written) <= logBytes;
}

std::size_t recordCount(std::string_view flagAndAddress, std::int32_t logStart, std::size_t recordBytes,
                        std::size_t most) {
  const double flag = numberAtStart(flagAndAddress.substr(0, 1));
  if (flag == 1) return most;
  if (flag != 0) return 0;
  const std::int32_t count =
      toInt32((writeAddress(flagAndAddress) - logStart) / static_cast<double>(recordBytes)).value_or(0);
  return std::min(static_cast<std::size_t>(std::max(count, 0)), most);
}

}  // namespace zephon
