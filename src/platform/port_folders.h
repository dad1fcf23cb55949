#pragma once

#include <string>

namespace zephon {

// Where serial ports are looked for.
struct PortFolders {
  std::string ports;             // holds COM1, COM2, ... as links or devices; empty for none
  std::string devices = "/dev";  // holds ttyUSB0, ttyUSB1, ...
};

// The folder that the environment variable ZEPHON_PORTS names, and /dev.
PortFolders systemPortFolders();

// The path behind a port name: COMn in the folder of ports when it stands there, a link that leads nowhere
// included; otherwise ttyUSB(n-1). Empty when the text is not "COM" and a number.
std::string devicePath(const PortFolders& folders, const std::string& portName);

}  // namespace zephon
