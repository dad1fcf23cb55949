#pragma once

#include <string>

#include "form/main.h"

namespace zephon {

// What a person can do about a port that could not be opened with this error, in one line of the language in
// use; empty when nothing is known.
std::string adviceText(const Main& main, const std::string& portName, int error);

}  // namespace zephon
