#include "platform/port_folders.h"

#include <sys/stat.h>

#include <cstdlib>

#include "platform/line_settings.h"

namespace zephon {

PortFolders systemPortFolders() {
  const char* named = std::getenv("ZEPHON_PORTS");
  return {named ? named : ""};
}

std::string devicePath(const PortFolders& folders, const std::string& portName) {
  const auto number = comNumberOf(portName);
  if (!number) return {};
  if (!folders.ports.empty()) {
    std::string own = folders.ports + "/" + portName;
    struct stat status {};
    if (::lstat(own.c_str(), &status) == 0) return own;
  }
  return folders.devices + "/ttyUSB" + std::to_string(*number - 1);
}

}  // namespace zephon
