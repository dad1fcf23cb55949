#include "simulator/chart_memory.h"

#include <cmath>
#include <limits>

#include "simulator/device_clock.h"
#include "simulator/encode.h"

namespace zephon::simulator {
namespace {

constexpr std::size_t kPageBytes = 32768;
constexpr int kFirstAddress = 0x020000;
constexpr double kSampleSeconds = 10.0;
constexpr std::size_t kMarkBytes = 9 + 3;  // and the end
constexpr std::string_view kEnd = "END";

std::size_t bytesOf(ChartFitted fitted) {
  switch (fitted) {
    case ChartFitted::None:
      return 0;
    case ChartFitted::FourPages:
      return 4 * kPageBytes;
    case ChartFitted::TwelvePages:
      return 12 * kPageBytes;
  }
  return 0;
}

std::string sampleBytes(const SiteValues& seen, double kilowattHours) {
  const double wholeCrest = std::round(seen.crestFactor);
  return unsignedFraction(seen.volts / 512.0, 2) + unsignedFraction(seen.amps / 256.0, 2) +
         signedFraction(seen.watts / 262144.0, 2) + unsignedFraction(seen.neutralGroundVolts / 65536.0, 3) +
         unsignedFraction(seen.hertz / 8000.0, 3) + signedFraction(seen.powerFactor / 2.0) + seen.reactive +
         asChar(toBcd(static_cast<std::int64_t>(wholeCrest))) +
         signedFraction(seen.crestFactor - wholeCrest) + fixedPoint8_24(kilowattHours / 232.0);
}

}  // namespace

ChartMemory::ChartMemory(ChartFitted fitted)
    : size_(bytesOf(fitted)), sizeLetter_(fitted == ChartFitted::FourPages ? '2' : '4') {}

void ChartMemory::start(double now, std::int64_t clock) {
  if (size_ == 0) return;
  bytes_.clear();
  recording_ = true;
  paused_ = false;
  mark("STR", now, clock);
}

void ChartMemory::clockSet(double now, std::int64_t clock) {
  if (recording_ && !paused_) mark("CDF", now, clock);
}

void ChartMemory::powerBack(double now, std::int64_t clock) {
  if (!paused_) return;
  paused_ = false;
  if (recording_) mark("PWR", now, clock);
}

double ChartMemory::nextSample() const {
  return recording_ && !paused_ ? nextSample_ : std::numeric_limits<double>::infinity();
}

void ChartMemory::sample(const SiteValues& seen, double kilowattHours) {
  nextSample_ += kSampleSeconds;
  store(sampleBytes(seen, kilowattHours));
}

void ChartMemory::mark(std::string_view name, double now, std::int64_t clock) {
  const ClockBytes at = clockBytes(clock);
  nextSample_ = now + kSampleSeconds;
  if (bytes_.size() + kMarkBytes > size_) return;
  store(std::string(name) + at.hour + at.minute + at.second + at.month + at.day + at.year);
}

void ChartMemory::store(std::string_view block) {
  const bool fits = bytes_.size() + block.size() + kEnd.size() <= size_;
  bytes_ += fits ? block : kEnd;
  recording_ = recording_ && fits;
}

std::optional<std::string> ChartMemory::page(int upperAddress) const {
  const int start = upperAddress * 0x100 - kFirstAddress;
  if (size_ == 0 || start < 0) return std::nullopt;
  const auto from = static_cast<std::size_t>(start);
  std::string page{'M', sizeLetter_};
  if (from < bytes_.size()) page += bytes_.substr(from, kPageBytes);
  page.resize(2 + kPageBytes, kErased);
  return page;
}

}  // namespace zephon::simulator
