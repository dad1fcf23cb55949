#pragma once

#include <span>
#include <string>
#include <vector>

#include "form/main.h"
#include "platform/usb_cables.h"

namespace zephon {

// The settings of the USB cable. Its driver gathers received bytes for a while before it hands them on, 16 ms
// unless it is told otherwise: too long for a dialogue of many short replies, each of which waits it out.
inline constexpr int kRequiredLatencyMs = 2;

// False if a cable's latency was read and is another one; true also with no cable to check. What to do about
// it then stands in exchange.shortfall.
bool checkCOMsettings(Main& main);

// Writes the required latency to every cable and reads it back. Empty when all of them have it; otherwise
// what a person can do, in one line.
std::string configureCables(const std::string& folder, std::span<const std::string> dict);

// The cables and their settings for reading, a line each, or one line that there is none.
std::string cablesText(const std::vector<UsbCable>& cables, std::span<const std::string> dict);

}  // namespace zephon
