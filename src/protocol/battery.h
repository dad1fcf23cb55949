#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "form/main.h"

namespace zephon {

// The battery's line for a reading, of 256 for 3 V: "Battery: 98%, 2.93V".
std::string batteryText(std::uint8_t reading, std::string_view name);

// Reads the battery into EUlbl. False when the exchange failed.
bool getBattery(Main& main);

}  // namespace zephon
