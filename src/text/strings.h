#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zephon {

// A blank is a space, a tab, a carriage return or a line feed.
constexpr bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// Splits at every separator; an empty text gives one empty part.
std::vector<std::string> split(std::string_view text, char separator);
std::string_view trimmed(std::string_view text);                             // without blanks at both ends
bool equalIgnoringCase(std::string_view a, std::string_view b);              // ASCII letters
std::size_t findIgnoringCase(std::string_view text, std::string_view what);  // npos without a hit
// The last `count` characters, or all of them when there are fewer.
std::string_view lastOf(std::string_view text, std::size_t count);
// `count` characters from `offset` (from 0) on: fewer, or none, where the text is shorter.
std::string_view partOf(std::string_view text, std::size_t offset, std::size_t count);

}  // namespace zephon
