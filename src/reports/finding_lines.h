#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zephon {

// How findings become lines, and lines pages. Lengths are in characters, texts UTF-8.

inline constexpr std::size_t kLinesAPage = 60;

// The lines of one finding, the first with its number: "07. " and up to 130 characters. A longer text goes on
// behind six blanks; it is cut at a blank, which belongs to neither side. One of more than 260 characters has
// three lines.
std::vector<std::string> findingLines(int number, std::string_view text);

// The lines of each page of the report. A finding that reaches a page's last line is finished on it. There
// are as many pages as the texts' lengths call for, a line begun for each 130 characters of a text, and at
// least one; without findings that one says that nothing was found.
std::vector<std::vector<std::string>> findingPages(std::span<const std::string> findings);

}  // namespace zephon
