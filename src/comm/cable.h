#pragma once

#include "form/main.h"

namespace zephon {

// True when every cable found has the settings that the dialogue needs; also when there is nothing to check.
bool checkCOMsettings(Main& main);

}  // namespace zephon
