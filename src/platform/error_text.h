#pragma once

#include <string>

namespace zephon {

// The system's own words for an error number, such as "No such file or directory".
std::string systemErrorText(int error);

}  // namespace zephon
