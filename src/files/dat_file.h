#pragma once

#include "files/file_reading.h"
#include "files/scope_csv.h"
#include "form/logs.h"
#include "protocol/device_date.h"

namespace zephon {

// .dat files: a log's raw bytes behind a short header, for support.
//   line 1   date and time
//        2   "ID: " and the ID
//        3   "Firmware Version: " and it
//        4   "Software Version: 4.4"
//        5   "Chip ID: " and it
//        6   "Voltage Rating: " and it
//        7   the kind
//     8-12   in a scope file only: "Mode: ", "X Scale: ", "CH1 Scale: ", "CH2 Scale: ", "CH3 Scale: "
//   then an empty line, the raw bytes as they are, and a line end
// Kinds: "Scope", "Time Stamp", "History", "Internal Chart Data".

// Of any kind but LiveChart, which has no raw bytes. `capture` is for a scope file.
std::string datFile(const FileStamp& stamp, FileKind kind, std::string_view raw,
                    const ScopeCapture* capture = nullptr);

// A log out of a .dat file, with its raw bytes, which lie in the file.
template <class Table>
struct DatReading : FileReading<Table> {
  std::string_view raw;
};

// Identity and rating are searched for in the header by their labels, from its start. The raw bytes are
// counted from the file's end. An event file has 8000 to 9000 bytes; no header is longer than one of those
// can have.
DatReading<LogTable<8>> readEventDat(std::string_view file, UtcOffset offset);
DatReading<LogTable<12>> readHistoryDat(std::string_view file, UtcOffset offset);

}  // namespace zephon
