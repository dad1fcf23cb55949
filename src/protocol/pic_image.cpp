#include "protocol/pic_image.h"

#include <algorithm>

#include "protocol/commands.h"
#include "protocol/encodings.h"
#include "protocol/event_codes.h"
#include "text/date_picture.h"
#include "text/number.h"
#include "text/strings.h"

namespace zephon {
namespace {

static_assert(kImageCharacters == tessara::kImage.replyBytes);

constexpr int kCodeBase = 48;
constexpr std::size_t kFirstRecord = 1;
constexpr std::size_t kRecordBytes = 4;
constexpr char kDatePicture[] = "mm/dd/yy hh:nn:ss";

int byteOfCharacter(char character) {
  return static_cast<unsigned char>(character) - kCodeBase;
}

int bcdAt(const PicImage& image, std::size_t index) {
  return bcdByte(imageByte(image, index));
}

std::int32_t counterAt(const PicImage& image, std::size_t lowest) {
  const std::string joined = std::to_string(bcdAt(image, lowest + 2)) +
                             std::to_string(bcdAt(image, lowest + 1)) + std::to_string(bcdAt(image, lowest));
  return wholeNumber(joined).value_or(0);
}

// By the class in a record.
constexpr int kClassCodes[] = {event::kUnderVoltageRecord, event::kOverVoltageRecord, event::kPowerOutage,
                               event::kSurge};

// The tens come as a number of their own in front of the digit of the hours.
std::int16_t hoursOf(std::uint8_t byte) {
  const int tens = byte >> 4 & 3;
  const int units = byte & 15;
  return static_cast<std::int16_t>(units > 9 ? tens : tens * 10 + units);
}

std::int64_t secondsOf(const EventSpan& span) {
  return ((span.days * std::int64_t{24} + span.hours) * 60 + span.minutes) * 60 + span.seconds;
}

bool isDate(std::int64_t seconds) {
  return seconds >= calendarSeconds({100, 1, 1, 0, 0, 0}) &&
         seconds < calendarSeconds({10000, 1, 1, 0, 0, 0});
}

}  // namespace

std::optional<PicImage> decodeImage(std::string_view characters) {
  const auto elements = split(characters, '.');
  PicImage image;
  if (elements.size() < image.size()) return std::nullopt;
  for (std::size_t i = 0; i < image.size(); ++i) {
    if (elements[i].empty()) return std::nullopt;
    const char byte = static_cast<char>(byteOfCharacter(elements[i].front()));
    image[i] = ascii2hex(std::string_view(&byte, 1));
  }
  return image;
}

std::uint8_t imageByte(const PicImage& image, std::size_t index) {
  const std::string& digits = image.at(index);
  return static_cast<std::uint8_t>(HexToDec(partOf(digits, 0, 1)) << 4 | HexToDec(partOf(digits, 1, 1)));
}

ImageCounts imageCounts(const PicImage& image) {
  return {counterAt(image, 241), counterAt(image, 244), counterAt(image, 247), counterAt(image, 250)};
}

PdEvent imageEvent(const PicImage& image, std::size_t record, std::span<const std::string> dict) {
  const std::size_t at = kFirstRecord + kRecordBytes * record;
  const std::uint8_t third = imageByte(image, at + 2);
  PdEvent event;
  event.text = pqString(kClassCodes[third >> 6], dict);
  event.days = static_cast<std::int16_t>(bcdAt(image, at + 3));
  event.hours = hoursOf(third);
  event.minutes = static_cast<std::int16_t>(bcdAt(image, at + 1));
  event.seconds = static_cast<std::int16_t>(bcdAt(image, at));
  return event;
}

std::optional<EventSpan> decodeEventSpan(std::string_view reply) {
  const auto elements = split(reply, '.');
  if (elements.size() < 4) return std::nullopt;
  std::array<int, 4> parts{};
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (elements[i].empty()) return std::nullopt;
    const int byte = byteOfCharacter(elements[i].front());
    if (byte < 0 || byte >> 4 > 9 || (byte & 15) > 9) return std::nullopt;
    parts[i] = bcdByte(static_cast<std::uint8_t>(byte));
  }
  return EventSpan{parts[0], parts[1], parts[2], parts[3]};
}

bool dateEvents(PdEvents& events, std::size_t count, const EventSpan& sinceNewest,
                const CalendarTime& present) {
  std::int64_t moment = calendarSeconds(present) - secondsOf(sinceNewest);
  for (std::size_t row = std::min(count, events.size()); row-- > 0;) {
    if (!isDate(moment)) return false;
    PdEvent& event = events[row];
    event.date = formatDate(calendarFromSeconds(moment), kDatePicture);
    moment -= secondsOf({event.days, event.hours, event.minutes, event.seconds});
  }
  return true;
}

}  // namespace zephon
