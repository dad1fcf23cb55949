#pragma once

#include <string>

#include "form/main.h"

namespace zephon {

// What becomes of the program after formLoad.
enum class Started {
  Form,         // the window may be shown
  Ended,        // nothing more to do
  Export,       // run the unattended export and end
  NoDictionary  // the user has been told; the program ends
};

// Starts the form: configuration, language, command line, displays, and what every button does.
Started formLoad(Main& main, const std::string& commandLine);

// Ends it, from whatever it is in the middle of: every pause and exchange ends at once, but for a write that
// the device has heard half of. That one is finished first; call again when the stack has unwound.
void formUnload(Main& main);

}  // namespace zephon
