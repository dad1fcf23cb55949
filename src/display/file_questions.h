#pragma once

#include "form/main.h"

namespace zephon {

// What file dialogs have in common.

inline const FileFilter kCsvFilter{"Comma-Separated (*.csv)", "csv"};
inline const FileFilter kDatFilter{"Data (*.dat)", "dat"};
inline const FileFilter kPdfFilter{"PDF (*.pdf)", "pdf"};
inline const FileFilter kTextFilter{"Text Documents (*.txt)", "txt"};

// Where a file dialog starts: the desktop or, for a user without one and without a home, the program's folder.
inline std::string firstFolder(const Main& main) {
  const Folders& folders = main.around.folders;
  return folders.desktop.empty() ? folders.program : folders.desktop;
}

// Asks before a file that stands is replaced; true when none stands.
bool mayReplace(Main& main, const std::string& path);

// Tells that a file could not be saved, and why.
void saveErrorSub(Main& main, const std::string& reason);

}  // namespace zephon
