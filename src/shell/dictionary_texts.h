#pragma once

#include "form/main.h"

namespace zephon {

// Puts the texts of the loaded dictionary on the elements: captions, both texts of buttons, tooltips, and the
// size of the letters where a long text would not fit its button.
void showTexts(Main& main);

}  // namespace zephon
