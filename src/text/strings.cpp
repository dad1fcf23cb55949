#include "text/strings.h"

#include <algorithm>

namespace zephon {
namespace {

char upperLetter(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool sameLetter(char a, char b) {
  return upperLetter(a) == upperLetter(b);
}

}  // namespace

std::vector<std::string> split(std::string_view text, char separator) {
  std::vector<std::string> parts;
  for (;;) {
    const std::size_t end = text.find(separator);
    parts.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + 1);
  }
}

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), sameLetter);
}

std::size_t findIgnoringCase(std::string_view text, std::string_view what) {
  const auto hit = std::search(text.begin(), text.end(), what.begin(), what.end(), sameLetter);
  if (hit == text.end() && !what.empty()) return std::string_view::npos;
  return static_cast<std::size_t>(hit - text.begin());
}

std::string_view lastOf(std::string_view text, std::size_t count) {
  return text.substr(text.size() - std::min(count, text.size()));
}

std::string_view partOf(std::string_view text, std::size_t offset, std::size_t count) {
  return text.substr(std::min(offset, text.size()), count);
}

}  // namespace zephon
