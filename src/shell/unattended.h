#pragma once

#include <string>

#include "form/main.h"

namespace zephon {

// The unattended export: connects, reads what the command line asks for, writes it to one file and ends the
// connection. Nobody is asked anything; what is to be said goes through the dialogs.
//
// The exit status: 0 done, 2 no file name or a command line that makes no sense, 3 the port can't be opened,
// 4 no answer or the answer was lost, 5 the file can't be written. After any but 0 a file that stood under
// the name is what it was.
int runUnattended(Main& main, const std::string& commandLine);

}  // namespace zephon
