#pragma once

#include "form/main.h"

namespace zephon {

// What happens when I press this? Every handler of the form is set here or in the function named here.
void wireMain(Main& main);

}  // namespace zephon
