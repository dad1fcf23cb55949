#include "reports/finding_lines.h"

#include <algorithm>

#include "form/findings.h"
#include "text/picture.h"

namespace zephon {
namespace {

constexpr std::size_t kLine = 130;
constexpr std::size_t kTwoLines = 260;
constexpr char kNumberPicture[] = "00";
constexpr char kIndent[] = "      ";

bool startsCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
}

std::size_t charactersIn(std::string_view text) {
  return static_cast<std::size_t>(std::ranges::count_if(text, startsCharacter));
}

// Where character `number`, counted from 1, begins; the text's end when it has fewer.
std::size_t placeOf(std::string_view text, std::size_t number) {
  std::size_t seen = 0;
  for (std::size_t place = 0; place < text.size(); ++place) {
    if (startsCharacter(text[place]) && ++seen == number) return place;
  }
  return text.size();
}

struct Cut {
  std::string_view first, rest;
};

// Cuts at the last blank at or before a character; after that character where there is none.
Cut cutAt(std::string_view text, std::size_t character) {
  const std::size_t end = placeOf(text, character + 1);
  const std::size_t blank = text.substr(0, end).rfind(' ');
  if (blank == std::string_view::npos || blank == 0) return {text.substr(0, end), text.substr(end)};
  return {text.substr(0, blank), text.substr(blank + 1)};
}

std::size_t linesCalledFor(std::span<const std::string> findings) {
  std::size_t lines = 0;
  for (const std::string& text : findings) lines += charactersIn(text) / kLine + 1;
  return lines;
}

std::size_t pagesCalledFor(std::span<const std::string> findings) {
  const std::size_t lines = linesCalledFor(findings);
  return std::max<std::size_t>(1, lines / kLinesAPage + (lines % kLinesAPage != 0));
}

std::string numbered(int number, std::string_view text) {
  return formatPicture(static_cast<double>(number), kNumberPicture) + ". " + std::string(text);
}

std::string indented(std::string_view text) {
  return kIndent + std::string(text);
}

}  // namespace

std::vector<std::string> findingLines(int number, std::string_view text) {
  const std::size_t length = charactersIn(text);
  if (length <= kLine) return {numbered(number, text)};
  const Cut late = length <= kTwoLines ? Cut{text, {}} : cutAt(text, kTwoLines);
  const Cut early = cutAt(late.first, kLine);
  std::vector<std::string> lines{numbered(number, early.first), indented(early.rest)};
  if (!late.rest.empty()) lines.push_back(indented(late.rest));
  return lines;
}

std::vector<std::vector<std::string>> findingPages(std::span<const std::string> findings) {
  std::vector<std::vector<std::string>> pages(1);
  int number = 0;
  for (const std::string& text : findings) {
    if (pages.back().size() >= kLinesAPage) pages.emplace_back();
    for (std::string& line : findingLines(++number, text)) pages.back().push_back(std::move(line));
  }
  if (findings.empty()) pages.front().push_back(numbered(1, kNothingFound));
  pages.resize(std::max(pages.size(), pagesCalledFor(findings)));
  return pages;
}

}  // namespace zephon
