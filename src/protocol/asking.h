#pragma once

#include <optional>
#include <string>

#include "form/main.h"

namespace zephon {

// Boxes that the user opens, perhaps in the middle of an exchange: what it waits for may come while the box
// stands, so the watchdog rests meanwhile and then counts anew.

void tell(Main& main, const std::string& text, const std::string& advice = {});
bool askYesNo(Main& main, const std::string& question);
// Asks for a text, with the answer that stands at first; nothing when cancelled.
std::optional<std::string> askText(Main& main, const std::string& title, const std::string& text,
                                   const std::string& answer);

}  // namespace zephon
