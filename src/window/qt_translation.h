#pragma once

#include <string>

namespace zephon {

// From now on Qt's own words (the buttons of boxes, the file dialog, the names of keys) are those of the
// language file's code, English where Qt has no catalogue of it installed.
void translateQt(const std::string& language);

// A key such as "Ctrl+1" as Qt's words name it, "Strg+1".
std::string keyInWords(const std::string& key);

}  // namespace zephon
