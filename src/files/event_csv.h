#pragma once

#include "files/file_reading.h"
#include "form/logs.h"

namespace zephon {

// The event log as a .csv file. Rows: date "mm/dd/yy", time "hh:mm:ss", the event's text in the language of
// the dictionary, its magnitude. An outage, a surge and the end of any event have none and read back with 0.

std::string eventCsv(const FileStamp& stamp, const LogTable<8>& events, std::span<const std::string> dict);

struct EventCsvReading : FileReading<LogTable<8>> {
  // Rows whose event text is not one of the dictionary's: the file is of another language. Their code is 0.
  std::size_t unknownEvents = 0;
};

EventCsvReading readEventCsv(std::string_view file, std::span<const std::string> dict);

}  // namespace zephon
