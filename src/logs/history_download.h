#pragma once

#include "form/main.h"

namespace zephon {

// Brings the historical log from the device into histData and shows it; its bytes stay in rawLogBuffer.
//
// True when the screen and the tables were left in order: the log is shown, the user has ended the download,
// or the reply stopped short and the user has been told how much came. False when no answer came at all while
// the page was wanted. The log of events goes with the old history, whatever happens.
bool getHistData(Main& main);

// Erases the log on the device. False when it does not confirm. First line only.
bool setClrHistData(Main& main);

}  // namespace zephon
