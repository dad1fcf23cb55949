#pragma once

#include <string>

#include "form/main.h"

namespace zephon {

// The help page: versions and the support number, the numbered lines, the keys, the copyright line.
std::string helpText(const Main& main);

// helpBtn switched on: shows the help page, and switches itself off once it has been read.
void showHelp(Main& main);

}  // namespace zephon
