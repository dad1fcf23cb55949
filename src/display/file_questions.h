#pragma once

#include "form/main.h"

namespace zephon {

// What file dialogs have in common.

inline const FileFilter kCsvFilter{"Comma-Separated (*.csv)", "csv"};
inline const FileFilter kDatFilter{"Data (*.dat)", "dat"};

// Where a file dialog starts: the desktop or, without one, the program's folder.
inline std::string firstFolder(const Main& main) {
  const Folders& folders = main.around.folders;
  return folders.desktop.empty() ? folders.program : folders.desktop;
}

}  // namespace zephon
