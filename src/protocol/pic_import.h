#pragma once

#include "form/main.h"

namespace zephon {

// Reads the memory image of the second line and takes out of it what it holds: counters (with recSlide and
// their boxes), the event table with its dates, and the limits. The characters stand in rawLogBuffer, the
// bytes in picImage.
//
// False when an exchange failed or the image makes no sense, but true all the same while the chart page is
// on: a broken import must not end a recording.
bool importPIC(Main& main);

}  // namespace zephon
