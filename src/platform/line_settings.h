#pragma once

#include <optional>
#include <string_view>

#include "platform/serial_device.h"

namespace zephon {

// The number of a port name such as "COM12", from 1 up; nothing for any other text.
std::optional<int> comNumberOf(std::string_view portName);

// Lays a mode string over `state`: words "baud=9600", "parity=N" (N, E or O), "data=8" (5 to 8) and "stop=1"
// (1 or 2) with blanks between, in any order, each at most once. What is not named stays as it was. False,
// with `state` untouched, for any other text, one without a word included.
bool applySettings(std::string_view settings, LineState& state);

}  // namespace zephon
