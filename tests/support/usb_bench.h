#pragma once

#include <unistd.h>

#include <cstdlib>

#include "support/temp_folder.h"

namespace zephon::testing_support {

// A made-up tree of the system's devices with USB-to-serial cables plugged in.
class UsbBench {
 public:
  // Lists the cable as the system does: the entry is a link into the folder of its USB device.
  void plug(const std::string& name, const std::string& latency, const std::string& product = "6001",
            const std::string& vendor = "0403") {
    const std::string device = "devices/usb1/1-" + name;
    tree_.put(device + "/idVendor", vendor + "\n");
    tree_.put(device + "/idProduct", product + "\n");
    tree_.put(device + "/1-" + name + ":1.0/" + name + "/latency_timer", latency + "\n");
    std::filesystem::create_directories(folder());
    std::filesystem::create_symlink(tree_ / (device + "/1-" + name + ":1.0/" + name), entry(name));
  }
  // A driver that takes every value and keeps none.
  void plugForgetful(const std::string& name) {
    plug(name, "16");
    std::filesystem::remove(entry(name) + "/latency_timer");
    std::filesystem::create_symlink("/dev/null", entry(name) + "/latency_timer");
  }
  // Everybody may look at the tree, nobody may write its files.
  void openToAll() const {
    namespace fs = std::filesystem;
    fs::permissions(tree_ / "", fs::perms(0755));
    for (const auto& each : fs::recursive_directory_iterator(tree_ / ""))
      if (each.is_regular_file()) fs::permissions(each.path(), fs::perms(0444));
  }
  std::string folder() const { return tree_ / "bus/usb-serial/devices"; }
  std::string latency(const std::string& name) const {
    return tree_.get("bus/usb-serial/devices/" + name + "/latency_timer");
  }

 private:
  std::string entry(const std::string& name) const { return folder() + "/" + name; }
  TempFolder tree_;
};

// An ordinary user for as long as it lives, also where the tests are run by root.
class WithoutRights {
 public:
  WithoutRights() : before_(::geteuid()) {
    if (before_ == 0 && ::seteuid(kNobody) != 0) std::abort();
  }
  WithoutRights(const WithoutRights&) = delete;
  WithoutRights& operator=(const WithoutRights&) = delete;
  ~WithoutRights() {
    if (::seteuid(before_) != 0) std::abort();
  }

 private:
  static constexpr uid_t kNobody = 65534;
  uid_t before_;
};

}  // namespace zephon::testing_support
