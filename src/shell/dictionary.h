#pragma once

#include <string>

#include "form/main.h"

namespace zephon {

// Loads the dictionary of Config::language, fills the language list and puts the texts on the elements. Empty
// on success; otherwise why not, and everything stays as it was.
std::string loadDictionary(Main& main);

// The user has chosen a language from the list: loads it and keeps it in the configuration. The old language
// stays when the new one can't be read.
void chooseLanguage(Main& main);

// The words in which a missing dictionary ends the program, and those where the old language stays.
inline constexpr const char* kNoDictionary =
    "Unable to locate or read dictionary file. Please reinstall software. Terminating program.";
inline constexpr const char* kLanguageStays =
    "Unable to locate or read dictionary file. Please reinstall software.";

}  // namespace zephon
