#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "files/file_kind.h"
#include "text/text_buffer.h"

namespace zephon {

// Comma-separated files: one byte a character (Windows-1252), lines ended by CR LF, numbers with a point.

inline constexpr std::string_view kLineEnd = "\r\n";

// A text as a field: in quotes if it holds a comma, a quote or a line end.
std::string csvField(std::string_view text);

// A text as it may stand in one line: control characters become blanks.
std::string oneLine(std::string_view text);

// A text as a line of its own, in the file's bytes.
std::string fileLine(std::string_view text);

// The eight lines of header, in bytes of the file:
//   1 date and time   2 "ID: " and the ID   3 firmware version   4 software version   5 chip ID
//   6 voltage rating   7 title   8 column names
// Lines 3 to 6 are a dictionary text, ": " and the value.
std::string csvHeader(const FileStamp& stamp, FileKind kind, const std::vector<std::string>& columns,
                      std::span<const std::string> dict);

// The texts of dictionary keys.
std::vector<std::string> dictTexts(std::span<const std::string> dict, std::initializer_list<int> keys);

// Pieces of a row. Each writes at `to`, and returns where it ended.
char* putText(char* to, std::string_view text);
// In at least two digits: formatPicture(value, "00").
char* putTwo(char* to, double value);
// Three numbers in at least two digits, such as "05/31/13".
char* putThree(char* to, double first, double second, double third, char separator);
// In the shortest decimal form.
char* putShortest(char* to, double value);
// In a fixed count of decimals, with at least so many digits before the point; nothing for no number.
char* putFixed(char* to, double value, int decimals, int minWhole);

// What the longest row of numbers needs.
inline constexpr std::size_t kRowRoom = 4096;

}  // namespace zephon
