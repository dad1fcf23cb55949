#pragma once

#include "files/file_reading.h"
#include "form/logs.h"

namespace zephon {

// A chart as a .csv file. Rows: date "mm/dd/yyyy", time "hh:mm:ss", then the eight quantities with their
// decimals. A live chart of the second line has the voltage alone or, from firmware "2.00" on and at 120 V,
// the voltage and the neutral-ground voltage, in whole volts.

// `rows` are the finished rows. The kind is LiveChart or InternalChart.
std::string chartCsv(const FileStamp& stamp, std::span<const std::array<double, 9>> rows, FileKind kind,
                     std::span<const std::string> dict);

// Its two parts, the lines of header and those of some rows, for a file that grows.
std::string chartCsvHead(const FileStamp& stamp, FileKind kind, std::span<const std::string> dict);
std::string chartCsvRows(const FileStamp& stamp, FileKind kind, std::span<const std::array<double, 9>> rows);

// Reads the earlier form as well, whose first line holds "Chart". Rows have all quantities but in a file of the
// second line, where the column names tell which; the others are 0. The rating is told from the first row's
// voltage.
FileReading<LogTable<9>> readChartCsv(std::string_view file, std::span<const std::string> dict);

}  // namespace zephon
