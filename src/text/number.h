#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zephon {

// A float to a whole number, ties to even. Nothing when it does not fit the width, or is no number.
std::optional<std::int16_t> toInt16(double value);
std::optional<std::int32_t> toInt32(double value);

// The number at the start of a text, blanks before it skipped: optional sign, digits, point, digits, exponent
// ("12V" is 12, "1.5e2x" is 150). 0 when the text does not start with one, or with one that no double holds.
double numberAtStart(std::string_view text);

// The same, but nothing where there is no such number.
std::optional<double> leadingNumber(std::string_view text);

// The text as one whole number of decimal digits, blanks around it skipped, optional sign. Nothing for
// anything else, and for more than nine digits.
std::optional<int> wholeNumber(std::string_view text);

// The text as one plain number, with nothing behind it but blanks. Nothing for anything else.
std::optional<double> plainNumber(std::string_view text);

// A whole number in decimal, filled up with leading zeros to a count of digits: padded(7, 2) is "07". A
// longer number stands whole; a sign comes on top of the digits.
std::string padded(std::int64_t value, std::size_t digits);

}  // namespace zephon
