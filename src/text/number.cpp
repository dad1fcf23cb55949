#include "text/number.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "text/strings.h"

namespace zephon {
namespace {

template <typename Whole>
std::optional<Whole> rounded(double value) {
  const double even = std::nearbyint(value);
  if (!(even >= std::numeric_limits<Whole>::min() && even <= std::numeric_limits<Whole>::max())) return {};
  return static_cast<Whole>(even);
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

bool startsNumber(std::string_view text) {
  if (text.empty()) return false;
  return isDigit(text[0]) || (text[0] == '.' && text.size() > 1 && isDigit(text[1]));
}

// Takes an optional sign off the front; true for a minus.
bool takeSign(std::string_view& text) {
  if (text.empty() || (text[0] != '-' && text[0] != '+')) return false;
  const bool minus = text[0] == '-';
  text.remove_prefix(1);
  return minus;
}

// Takes a number off the front of the text.
std::optional<double> takeNumber(std::string_view& text) {
  const bool minus = takeSign(text);
  if (!startsNumber(text)) return {};
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc{}) return {};
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return minus ? -value : value;
}

}  // namespace

std::optional<std::int16_t> toInt16(double value) {
  return rounded<std::int16_t>(value);
}
std::optional<std::int32_t> toInt32(double value) {
  return rounded<std::int32_t>(value);
}

std::optional<double> leadingNumber(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  return takeNumber(text);
}

double numberAtStart(std::string_view text) {
  return leadingNumber(text).value_or(0);
}

std::optional<int> wholeNumber(std::string_view text) {
  text = trimmed(text);
  const bool minus = takeSign(text);
  if (text.empty() || text.size() > 9) return {};
  int value = 0;
  for (const char c : text) {
    if (!isDigit(c)) return {};
    value = value * 10 + (c - '0');
  }
  return minus ? -value : value;
}

std::optional<double> plainNumber(std::string_view text) {
  text = trimmed(text);
  const std::optional<double> value = takeNumber(text);
  return text.empty() ? value : std::nullopt;
}

std::string padded(std::int64_t value, std::size_t digits) {
  std::string text = std::to_string(value);
  const std::size_t sign = value < 0 ? 1 : 0;
  if (text.size() - sign < digits) text.insert(sign, digits + sign - text.size(), '0');
  return text;
}

}  // namespace zephon
