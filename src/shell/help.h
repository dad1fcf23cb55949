#pragma once

#include "form/main.h"

namespace zephon {

// helpBtn switched on: shows the help page, and switches itself off once it has been read.
void showHelp(Main& main);

}  // namespace zephon
