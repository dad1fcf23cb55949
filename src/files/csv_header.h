#pragma once

#include <algorithm>

#include "files/csv_text.h"
#include "files/file_reading.h"

namespace zephon {

// The head of a .csv file as a reader takes it. Values are the ends of their lines: 10 characters of ID, 5 of
// firmware version, 8 of chip ID, 3 of rating, or fewer where the line's label ends nearer.

struct CsvHead {
  FileIdentity identity;
  char separator = ',';
  std::size_t columns = 0;                   // names in the line of them; 0 without one
  std::optional<std::string_view> firstRow;  // a line that was read and is no part of the head
  std::optional<FileFault> fault;
};

// Takes the head off a file. An earlier form, told by a word in line 1, has its ID at the start of that line
// and a line of column names, or none. The title of a kind that is none of `kinds` is a fault.
CsvHead readCsvHead(CsvText& text, std::string_view earlierWord, std::initializer_list<FileKind> kinds,
                    std::span<const std::string> dict);

// The rows of a file behind its head. `take` is given each row's fields and says what it expected, empty when
// it is content. Blank lines are allowed at the end only.
template <class Take>
std::optional<FileFault> readCsvRows(CsvText& text, const CsvHead& head, Take take) {
  std::optional<std::size_t> blankLine;
  CsvFields fields;
  std::optional<std::string_view> line = head.firstRow ? head.firstRow : text.next();
  for (; line; line = text.next()) {
    if (isBlankLine(*line, head.separator)) {
      if (!blankLine) blankLine = text.lineNumber();
      continue;
    }
    if (blankLine) return FileFault{blankLine, {}, "a row, not a blank line"};
    const bool split = fields.split(*line, head.separator);
    const std::string_view expected = split ? take(fields) : std::string_view("a row of fields");
    if (!expected.empty()) return FileFault{text.lineNumber(), {}, std::string(expected)};
  }
  return {};
}

// Reads the rows into a reading whose table `take` fills. After a fault it holds nothing else.
template <class Reading, class Take>
void readCsvTable(Reading& reading, CsvText& text, const CsvHead& head, Take take) {
  reading.fault = head.fault ? head.fault : readCsvRows(text, head, take);
  if (!reading.fault) reading.identity = head.identity;
  if (reading.fault) reading.table.clear();
}

// How many rows to make room for: those that fit the file, within reason.
inline std::size_t rowsToExpect(std::size_t fileBytes, std::size_t shortestRow) {
  return std::min<std::size_t>(fileBytes / shortestRow, 65536);
}

}  // namespace zephon
