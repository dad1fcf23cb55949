#pragma once

#include <string>

#include "platform/port_folders.h"

namespace zephon {

// Where the advice looks, so that a test can build a little system of its own.
struct AdviceRoots {
  PortFolders folders = systemPortFolders();
  std::string processes = "/proc";
};

// What to do about a port that could not be opened: one line of plain English about the device at
// `devicePath` (as devicePath() gave it) and the system's error number. It tells what the system says now:
// which ports there are, who owns the device, whether the user is in its group, which program holds it.
std::string portAdvice(const std::string& devicePath, int error, const AdviceRoots& roots = {});

}  // namespace zephon
