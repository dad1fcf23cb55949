#pragma once

#include "files/file_reading.h"
#include "form/logs.h"

namespace zephon {

// The historical log as a .csv file. Rows: date "mm/dd/yy" and end of the half hour, its start, and columns 6
// to 11 in the shortest decimal form. The row that closes the table is not written. Read back, it is the end
// of the last half hour, on the day of its start.

std::string historyCsv(const FileStamp& stamp, const LogTable<12>& history,
                       std::span<const std::string> dict);

// Reads the earlier form as well, whose first line holds "Historical". The rating is told from the first
// row's average voltage.
FileReading<LogTable<12>> readHistoryCsv(std::string_view file, std::span<const std::string> dict);

}  // namespace zephon
