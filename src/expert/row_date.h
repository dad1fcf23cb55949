#pragma once

#include <optional>
#include <string>

#include "expert/log_view.h"
#include "platform/wall_clock.h"

namespace zephon {

// The dates of rows that begin with year (two digits), day, month, hour, minute and second.

// A row's device date text, "hh:mm:ss mm/dd/20yy", each column with at least two digits.
std::string rowDateText(const LogView& log, std::size_t row);

// The date that stands in that text, read by position, milliseconds 0. Nothing when a column is no number or
// a field does not fit 16 bits.
std::optional<sysTimeRecord> rowDate(const LogView& log, std::size_t row);

// "mm/dd/20yy" of a row.
std::string rowDay(const LogView& log, std::size_t row);

}  // namespace zephon
