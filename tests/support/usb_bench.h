#pragma once

#include "support/temp_folder.h"

namespace zephon::testing_support {

// A made-up tree of the system's devices with USB-to-serial cables plugged in. An entry is a link into the
// folder of its USB device, as the system's own are.
class UsbBench {
 public:
  void plug(const std::string& name, const std::string& latency, const std::string& product = "6001",
            const std::string& vendor = "0403") const {
    const std::string device = "devices/usb1/1-" + name;
    const std::string port = device + "/1-" + name + ":1.0/" + name;
    tree_.put(device + "/idVendor", vendor + "\n");
    tree_.put(device + "/idProduct", product + "\n");
    tree_.put(port + "/latency_timer", latency + "\n");
    std::filesystem::create_directories(folder());
    std::filesystem::create_symlink(tree_ / port, entry(name));
  }
  // A driver that takes every value and keeps none.
  void plugForgetful(const std::string& name) const {
    plug(name, "16");
    std::filesystem::remove(latencyFile(name));
    std::filesystem::create_symlink("/dev/null", latencyFile(name));
  }
  void unplug(const std::string& name) const { std::filesystem::remove(entry(name)); }

  std::string folder() const { return tree_ / "bus/usb-serial/devices"; }
  std::string latencyFile(const std::string& name) const { return entry(name) + "/latency_timer"; }
  std::string latency(const std::string& name) const {
    return tree_.get("bus/usb-serial/devices/" + name + "/latency_timer");
  }
  void openToAll() const { std::filesystem::permissions(tree_ / "", std::filesystem::perms(0755)); }

 private:
  std::string entry(const std::string& name) const { return folder() + "/" + name; }
  TempFolder tree_;
};

}  // namespace zephon::testing_support
