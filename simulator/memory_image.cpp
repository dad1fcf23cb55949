#include "simulator/memory_image.h"

#include <algorithm>

#include "simulator/encode.h"

namespace zephon::simulator {
namespace {

constexpr int kFirstRecord = 1;
constexpr int kRecordBytes = 4;
constexpr int kFirstCounter = 241;
constexpr int kCounterBytes = 3;
constexpr int kRingPosition = 253;

struct Span {
  std::uint8_t days, hours, minutes, seconds;  // BCD
};

Span bcdSpan(std::int64_t seconds) {
  const std::int64_t held = std::max<std::int64_t>(0, seconds);
  return {toBcd(held / 86400), toBcd(held / 3600 % 24), toBcd(held / 60 % 60), toBcd(held % 60)};
}

}  // namespace

std::optional<ImageEvent> imageEvent(Event event) {
  switch (event) {
    case Event::Overload:
      return std::nullopt;
    case Event::Outage:
      return ImageEvent::Outage;
    case Event::UnderShutdown:
    case Event::UnderRecord:
      return ImageEvent::UnderVoltage;
    case Event::OverRecord:
    case Event::OverShutdown:
      return ImageEvent::OverVoltage;
    case Event::Surge:
      return ImageEvent::Surge;
  }
  return std::nullopt;
}

MemoryImage::MemoryImage(LimitBytes limits) {
  bytes_[254] = limits.record;
  bytes_[255] = limits.shutdown;
  clear();
}

void MemoryImage::clear() {
  std::fill(bytes_.begin() + kFirstRecord, bytes_.begin() + kFirstCounter, asByte(kErased));
  std::fill(bytes_.begin() + kFirstCounter, bytes_.begin() + kRingPosition + 1, std::uint8_t{0});
}

int MemoryImage::count(ImageEvent event) const {
  int total = 0;
  for (int i = kCounterBytes - 1; i >= 0; --i) {
    const int index = kFirstCounter + kCounterBytes * static_cast<int>(event) + i;
    total = total * 100 + fromBcd(at(index)).value_or(0);
  }
  return total;
}

void MemoryImage::record(ImageEvent event, std::int64_t secondsSinceLast) {
  const Span span = bcdSpan(secondsSinceLast);
  const int kind = static_cast<int>(event);
  int place = at(kRingPosition) / kRecordBytes % kRecords;
  const int first = kFirstRecord + kRecordBytes * place;
  poke(first, span.seconds);
  poke(first + 1, span.minutes);
  poke(first + 2, static_cast<std::uint8_t>(kind << 6 | span.hours));
  poke(first + 3, span.days);
  place = (place + 1) % kRecords;
  poke(kRingPosition, static_cast<std::uint8_t>(place * kRecordBytes));

  int total = std::min(count(event) + 1, 999999);
  for (int i = 0; i < kCounterBytes; ++i, total /= 100) {
    poke(kFirstCounter + kCounterBytes * kind + i, toBcd(total % 100));
  }
}

std::string MemoryImage::dump() const {
  std::string text;
  for (const std::uint8_t byte : bytes_) {
    text += imageCharacter(byte);
    text += '.';
  }
  return text;
}

char imageCharacter(std::uint8_t byte) {
  const char character = asChar(byte + 48);
  return character == '.' ? asChar(0xFF + 48) : character;
}

std::uint8_t imageByte(char character) {
  return static_cast<std::uint8_t>(asByte(character) - 48);
}

std::string imageSpan(std::int64_t seconds) {
  const Span span = bcdSpan(seconds);
  return {imageCharacter(span.days),    '.', imageCharacter(span.hours),  '.',
          imageCharacter(span.minutes), '.', imageCharacter(span.seconds)};
}

}  // namespace zephon::simulator
