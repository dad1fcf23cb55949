#include "text/picture.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "text/decimal.h"

namespace zephon {
namespace {

struct Picture {
  std::string_view before;
  std::string_view behind;
  int wholeAlways = 0;     // digits before the point that always stand
  int fractionAlways = 0;  // and behind it
  int fractionMost = 0;
};

// The run of "0" and "#" at a position.
std::string_view placesAt(std::string_view picture, std::size_t start) {
  const std::string_view rest = picture.substr(std::min(start, picture.size()));
  return rest.substr(0, rest.find_first_not_of("0#"));
}

Picture parsePicture(std::string_view picture) {
  std::size_t start = std::min(picture.find_first_of("0#"), picture.size());
  if (start > 0 && start < picture.size() && picture[start - 1] == '.') --start;
  const std::string_view whole = placesAt(picture, start);
  std::size_t end = start + whole.size();
  std::string_view fraction;
  if (end < picture.size() && picture[end] == '.') {
    fraction = placesAt(picture, end + 1);
    end += 1 + fraction.size();
  }
  const std::size_t firstZero = std::min(whole.find('0'), whole.size());
  return {picture.substr(0, start), picture.substr(end), static_cast<int>(whole.size() - firstZero),
          static_cast<int>(fraction.rfind('0') + 1),  // npos + 1 is 0
          static_cast<int>(fraction.size())};
}

template <typename Float>
std::string formatAny(Float value, std::string_view text) {
  if (!std::isfinite(value)) return {};
  const Picture picture = parsePicture(text);
  Decimal decimal(value);
  decimal.roundTo(picture.fractionMost);
  const int fraction = std::max(decimal.fractionDigits(), picture.fractionAlways);
  std::string result(decimal.negative() ? "-" : "");
  result += picture.before;
  result += decimal.unsignedText(picture.wholeAlways, fraction);
  result += picture.behind;
  return result;
}

template <typename Float>
Float roundAny(Float value, int decimals) {
  if (!std::isfinite(value)) return value;
  Decimal decimal(value);
  decimal.roundTo(decimals);
  const std::string text = decimal.unsignedText(1, decimal.fractionDigits());
  Float result = 0;
  std::from_chars(text.data(), text.data() + text.size(), result);
  return decimal.negative() ? -result : result;
}

}  // namespace

std::string formatPicture(double value, std::string_view picture) {
  return formatAny(value, picture);
}
std::string formatPicture(float value, std::string_view picture) {
  return formatAny(value, picture);
}

double roundDecimals(double value, int decimals) {
  return roundAny(value, decimals);
}
float roundDecimals(float value, int decimals) {
  return roundAny(value, decimals);
}

std::string shortestText(double value) {
  if (!std::isfinite(value)) return {};
  const Decimal decimal(value);
  return (decimal.negative() ? "-" : "") + decimal.unsignedText(1, decimal.fractionDigits());
}

}  // namespace zephon
