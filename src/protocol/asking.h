#pragma once

#include <optional>
#include <string>

#include "form/main.h"

namespace zephon {

// Boxes that the user opens, perhaps in the middle of an exchange: what it waits for may come while the box
// stands, so the watchdog rests meanwhile and then counts anew.

void tell(Main& main, const std::string& text, const std::string& advice = {});
// A message under a title of its own.
void tellTitled(Main& main, const std::string& title, const std::string& text);
// Asks whether something that the conditioner keeps is to be cleared; it is gone then.
bool askToClear(Main& main, const std::string& subject);
// Asks for a text, with the answer that stands at first; nothing when cancelled.
std::optional<std::string> askText(Main& main, const std::string& title, const std::string& text,
                                   const std::string& answer);

// A box is about to stand. A tick of the live chart that it interrupts could not go on before it is closed:
// the tick is given up, and the recording goes on with the next one. The functions above see to it.
void letChartGoOn(Main& main);

}  // namespace zephon
