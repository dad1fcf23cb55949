#pragma once

#include <string>

#include "form/main.h"

namespace zephon {

// Connects, takes one reading of everything that the device measures, prints it and ends the connection.
// The exit status: 0 done, 3 the port can't be opened, 4 no answer or the answer was lost.
int runUnattended(Main& main, const std::string& commandLine);

}  // namespace zephon
