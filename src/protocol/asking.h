#pragma once

#include <string>

#include "form/main.h"

namespace zephon {

// Boxes that the user opens, perhaps in the middle of an exchange: what it waits for may come while the box
// stands, so the watchdog rests meanwhile and then counts anew.

void tell(Main& main, const std::string& text, const std::string& advice = {});
bool askYesNo(Main& main, const std::string& question);

}  // namespace zephon
