#pragma once

#include <optional>
#include <string>

#include "form/main.h"

namespace zephon {

// Saved logs, opened in the place of a download: the table and what the file tells of its device go into
// Main, and the log is shown. A file that is none of its kind leaves no table and a message that tells where
// it stops being one, and what was expected there.
struct LogFile {
  bool hasRawForm;  // a .dat file can be opened too
  void (*open)(Main& main, const std::string& path);
};
extern const LogFile kEventFile;
extern const LogFile kHistoryFile;
extern const LogFile kChartFile;

// The file that the user picks; nothing when cancelled.
std::optional<std::string> askForLogFile(Main& main, const LogFile& file);

}  // namespace zephon
