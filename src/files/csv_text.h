#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace zephon {

// A .csv file's text, line by line. Lines end in CR LF or LF; a byte-order mark is skipped, and a file in
// UTF-8 is read as the code page's characters. The bytes have to outlive this, and lines point
// into them. Of a file larger than kLargestFile only so much is read.
class CsvText {
 public:
  explicit CsvText(std::string_view bytes);
  CsvText(const CsvText&) = delete;
  CsvText& operator=(const CsvText&) = delete;

  // The next line without its end; nothing at the end of the file.
  std::optional<std::string_view> next();
  std::size_t lineNumber() const { return lineNumber_; }  // of the last line, from 1
  std::size_t size() const { return size_; }              // of the file

 private:
  std::string converted_;
  std::string_view rest_;
  std::size_t size_;
  std::size_t lineNumber_ = 0;
};

// A line's fields. Fields in quotes lose them. Valid until the next line is split.
class CsvFields {
 public:
  static constexpr std::size_t kMost = 32;

  // False when there are more than kMost fields, or a quote is not closed.
  bool split(std::string_view line, char separator);

  std::size_t count() const { return count_; }
  std::string_view operator[](std::size_t i) const { return fields_[i]; }
  // Drops empty fields at the end beyond a count.
  void trimTo(std::size_t count);
  // A comma-separated line whose last `values` fields were torn apart by decimal commas, every one: puts them
  // together again, so that `plain + values` fields are left.
  void joinDecimals(std::size_t plain, std::size_t values);
  // A field as a number with a point, or with a comma where that can be nothing else.
  std::optional<double> number(std::size_t i) const;
  // The same, rounded.
  std::optional<double> number(std::size_t i, int decimals) const;

 private:
  std::optional<double> longNumber(std::string_view text) const;
  bool splitQuoted(std::string_view line);

  std::array<std::string_view, kMost> fields_;
  std::size_t count_ = 0;
  char separator_ = ',';
  bool joined_ = false;
  std::string unquoted_;
};

// The separator of a line of names: the one of "," ";" and tab that stands in it most often, "," for none.
char separatorOf(std::string_view line);

// A line of blanks and separators only.
bool isBlankLine(std::string_view line, char separator);

// Three whole numbers of one to four digits each with one separator between them, "05/31/2013".
std::optional<std::array<int, 3>> threeNumbers(std::string_view text, char separator);

// Month, day and year of a date with "/" or, if it has none, "-"; nothing for no date.
std::optional<std::array<int, 3>> dateParts(std::string_view text);
// Hour, minute and second.
std::optional<std::array<int, 3>> timeParts(std::string_view text);

}  // namespace zephon
