#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zephon {

// Where Linux lists its USB-to-serial ports: a folder for each, named as its device, with the driver's
// settings in it as files and the cable somewhere above it.
inline constexpr const char* kUsbSerialFolder = "/sys/bus/usb-serial/devices";

// A cable with the chip of the conditioner's own: vendor 0403, product 6001.
struct UsbCable {
  std::string name;              // of its device, such as "ttyUSB0"
  std::optional<int> latencyMs;  // how long it may hold received bytes back; nothing if it can't be read
};

// The cables listed in `folder`, in the order of their numbers. None where there is no such folder.
std::vector<UsbCable> usbCables(const std::string& folder);

// The file that holds the latency of the cable of that name.
std::string latencyFile(const std::string& folder, const std::string& name);

// Writes the latency. 0, or the system's error number: EACCES or EPERM without the right to.
int setLatency(const std::string& folder, const std::string& name, int milliseconds);

}  // namespace zephon
