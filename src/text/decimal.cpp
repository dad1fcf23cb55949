#include "text/decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>

namespace zephon {

Decimal::Decimal(double finite) {
  take(finite);
}
Decimal::Decimal(float finite) {
  take(finite);
}

// to_chars writes "-d.ddde-xx": the digits around the point, then the power of ten of the first one.
template <typename Float>
void Decimal::take(Float finite) {
  std::array<char, 32> buffer;
  const auto end =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), finite, std::chars_format::scientific).ptr;
  std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  negative_ = text.front() == '-';
  if (negative_) text.remove_prefix(1);
  const std::size_t e = text.find('e');
  digits_ = text.substr(0, 1);
  if (e > 2) digits_ += text.substr(2, e - 2);
  const char* power = text.data() + e + (text[e + 1] == '+' ? 2 : 1);
  std::from_chars(power, end, beforePoint_);
  ++beforePoint_;
  strip();
}

void Decimal::strip() {
  while (!digits_.empty() && digits_.back() == '0') digits_.pop_back();
  if (!digits_.empty()) return;
  negative_ = false;
  beforePoint_ = 0;
}

void Decimal::roundTo(int decimals) {
  const int keep = beforePoint_ + decimals;
  if (keep >= static_cast<int>(digits_.size())) return;
  const bool up = keep >= 0 && digits_[static_cast<std::size_t>(keep)] >= '5';
  digits_.resize(static_cast<std::size_t>(std::max(keep, 0)));
  if (up) roundUp();
  strip();
}

// One more in the last digit; 9.99 becomes 10.
void Decimal::roundUp() {
  while (!digits_.empty() && digits_.back() == '9') digits_.pop_back();
  if (digits_.empty()) {
    digits_ = "1";
    ++beforePoint_;
  } else {
    ++digits_.back();
  }
}

int Decimal::fractionDigits() const {
  return std::max(static_cast<int>(digits_.size()) - beforePoint_, 0);
}

char Decimal::at(int place) const {
  const int index = beforePoint_ + place;
  const bool inside = index >= 0 && index < static_cast<int>(digits_.size());
  return inside ? digits_[static_cast<std::size_t>(index)] : '0';
}

std::string Decimal::unsignedText(int minWhole, int fraction) const {
  std::string result;
  for (int place = -std::max(beforePoint_, minWhole); place < 0; ++place) result += at(place);
  if (fraction > 0) result += '.';
  for (int place = 0; place < fraction; ++place) result += at(place);
  return result;
}

}  // namespace zephon
