#pragma once

#include "form/main.h"

namespace zephon {

// The page of the COM port. It needs no device, and there is none while it can be reached.

// saveComBtn, detectComBtn, configComBtn.
void wireComPage(Main& main);

// What the page shows when it is opened: the number in use, the captions of its buttons, the cables.
void showComPage(Main& main);

// Ends what is under way on it.
void leaveComPage(Main& main);

}  // namespace zephon
