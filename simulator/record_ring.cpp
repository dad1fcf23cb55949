#include "simulator/record_ring.h"

#include "simulator/encode.h"

namespace zephon::simulator {

void RecordRing::write(std::string_view record) {
  std::string place(record.substr(0, recordBytes_));
  place.resize(recordBytes_, kErased);
  const std::size_t at = next_ * recordBytes_;
  bytes_.replace(at, at < bytes_.size() ? recordBytes_ : 0, place);
  next_ = (next_ + 1) % records_;
  wrapped_ = wrapped_ || next_ == 0;
}

void RecordRing::clear() {
  bytes_.clear();
  next_ = 0;
  wrapped_ = false;
}

std::string RecordRing::frame() const {
  const auto address = static_cast<std::uint32_t>(firstAddress_ + next_ * recordBytes_);
  std::string frame = wrapped_ ? "1" : "0";
  frame += bigEndian24(address);
  frame += bytes_;
  frame.resize(4 + records_ * recordBytes_, kErased);
  return frame;
}

}  // namespace zephon::simulator
