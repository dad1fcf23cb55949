#pragma once

#include "form/words.h"

namespace zephon {

// A key of the window and what it does. The keys are named as desktops write them in English: "Ctrl+1", "F1".
// The window binds them and the help page lists them, both in the names that the desktop has for them.
struct Shortcut {
  const char* key;
  Word does;
};

namespace shortcuts {
inline constexpr Shortcut kMeasure{"Ctrl+1", words::kMeasure};
inline constexpr Shortcut kScope{"Ctrl+2", words::kScope};
inline constexpr Shortcut kChart{"Ctrl+3", words::kChart};
inline constexpr Shortcut kOutlets{"Ctrl+4", words::kOutlets};
inline constexpr Shortcut kData{"Ctrl+5", words::kData};
inline constexpr Shortcut kSetup{"Ctrl+6", words::kSetup};
inline constexpr Shortcut kPort{"Ctrl+7", words::kPort};
inline constexpr Shortcut kExpert{"Ctrl+E", words::kExpert};
inline constexpr Shortcut kSave{"Ctrl+S", words::kSave};
inline constexpr Shortcut kHelp{"F1", words::kHelp};
inline constexpr Shortcut kQuit{"Ctrl+Q", words::kQuit};
}  // namespace shortcuts

inline constexpr Shortcut kShortcuts[] = {
    shortcuts::kMeasure, shortcuts::kScope, shortcuts::kChart, shortcuts::kOutlets,
    shortcuts::kData,    shortcuts::kSetup, shortcuts::kPort,  shortcuts::kExpert,
    shortcuts::kSave,    shortcuts::kHelp,  shortcuts::kQuit,
};

}  // namespace zephon
