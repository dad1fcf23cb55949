#pragma once

#include <span>
#include <string>
#include <vector>

#include "files/file_kind.h"
#include "form/recording.h"
#include "platform/save_file.h"

namespace zephon {

// The journal of a live chart: a file in the user's state folder that gets each row at once, in the form of a
// saved chart, so that a close, a crash or a kill costs none. A save ends it; what stands at the next start
// is told.
//
// Each device has a file of its own: another one's rows would not fit the file's head. While its program runs
// a file's name ends in ".unsaved", behind ".csv".

// Adds those of the finished rows that the journal has not yet. After a failure they are taken up by the next
// call. Without a folder there is no journal.
SaveResult keepJournal(ChartJournal& journal, const std::string& folder, const FileStamp& stamp,
                       std::span<const std::array<double, 9>> rows, std::span<const std::string> dict);

// The first `rows` have been saved: its files go, and the next row begins another one.
void endJournal(ChartJournal& journal, std::size_t rows);

// The table goes, or is another one: the first `rows` of the new one need no journal. The files stay.
void leaveJournal(ChartJournal& journal, std::size_t rows);

// Turns the journals that programs have left behind into charts: cut to whole rows, and named ".csv". Those
// without a row go. Their paths, the latest last.
std::vector<std::string> takeOverJournals(const std::string& folder);

}  // namespace zephon
