#pragma once

#include <span>
#include <string>

namespace zephon {

// The name of month 1 to 12 in a language; empty for any other number.
std::string monthString(double theMonth, std::span<const std::string> dict);

}  // namespace zephon
