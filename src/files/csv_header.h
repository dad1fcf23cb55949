#pragma once

#include <algorithm>

#include "files/csv_text.h"
#include "files/file_reading.h"

namespace zephon {

// The head of a .csv file as a reader takes it. Values are the ends of their lines: 10 characters of ID, 5 of
// firmware version, 8 of chip ID, or fewer where the line's label ends nearer. The rating is the number behind
// the label: 240 from 200 V on, else 120, and so where none stands.

struct CsvHead {
  FileIdentity identity;
  char separator = ',';
  std::size_t columns = 0;                   // names in line 8; 0 for an earlier form
  std::optional<std::string_view> firstRow;  // a line that was read and is no part of the head
  std::optional<FileFault> fault;
};

// An earlier form of file: its first line holds a word, and begins with the ID. Its second line is one of column
// names, whatever it holds, or may be the first row already.
struct EarlierForm {
  std::string_view word;  // empty: there is no such form
  bool maySkipNames = false;
};

// Takes the head off a file. The title of a kind that is none of `kinds` is a fault.
CsvHead readCsvHead(CsvText& text, EarlierForm earlier, std::initializer_list<FileKind> kinds,
                    std::span<const std::string> dict);

// What a row should have been.
struct Expected {
  Word word;
  std::string_view filling = {};  // a text that stays
};

// The rows of a file behind its head. `take` is given each row's fields and says what it expected, nothing when
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
    if (blankLine) return FileFault{blankLine, {}, words::kNoBlankLine};
    if (!fields.split(*line, head.separator)) return FileFault{text.lineNumber(), {}, words::kRowOfFields};
    if (const std::optional<Expected> expected = take(fields))
      return FileFault{text.lineNumber(), {}, expected->word, std::string(expected->filling)};
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
