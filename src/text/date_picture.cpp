#include "text/date_picture.h"

#include "text/number.h"

namespace zephon {
namespace {

char lowerLetter(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool isPart(char letter) {
  return std::string_view("ymdhns").find(letter) != std::string_view::npos;
}

std::size_t runLength(std::string_view picture, char letter) {
  std::size_t count = 0;
  while (count < picture.size() && lowerLetter(picture[count]) == letter) ++count;
  return count;
}

std::string yearText(int year, std::size_t letters) {
  return letters > 2 ? padded(year, 4) : padded((year % 100 + 100) % 100, 2);
}

std::string partText(const CalendarTime& time, char part, std::size_t letters) {
  switch (part) {
    case 'y':
      return yearText(time.year, letters);
    case 'm':
      return padded(time.month, letters);
    case 'd':
      return padded(time.day, letters);
    case 'h':
      return padded(time.hour, letters);
    case 'n':
      return padded(time.minute, letters);
    default:
      return padded(time.second, letters);
  }
}

}  // namespace

std::string formatDate(const CalendarTime& time, std::string_view picture) {
  std::string result;
  char previous = 0;
  while (!picture.empty()) {
    const char letter = lowerLetter(picture.front());
    if (!isPart(letter)) {
      result += picture.front();
      picture.remove_prefix(1);
      continue;
    }
    const std::size_t letters = runLength(picture, letter);
    const char part = letter == 'm' && previous == 'h' ? 'n' : letter;
    result += partText(time, part, letters);
    previous = part;
    picture.remove_prefix(letters);
  }
  return result;
}

std::string formatDate(double value, std::string_view picture) {
  return formatDate(calendarFromValue(value), picture);
}

}  // namespace zephon
