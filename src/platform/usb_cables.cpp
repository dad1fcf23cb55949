#include "platform/usb_cables.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

namespace zephon {
namespace {

namespace fs = std::filesystem;

constexpr const char* kVendor = "0403";
constexpr const char* kProduct = "6001";

// The device's folder lies in its interface's, and that in the cable's.
constexpr int kLevelsToCable = 3;

std::string firstWord(const fs::path& file) {
  std::string word;
  std::ifstream(file) >> word;
  return word;
}

bool isOurCable(const fs::path& entry) {
  std::error_code error;
  fs::path folder = fs::canonical(entry, error);
  for (int level = 0; !error && level < kLevelsToCable; ++level) {
    const std::string vendor = firstWord(folder / "idVendor");
    if (!vendor.empty()) return vendor == kVendor && firstWord(folder / "idProduct") == kProduct;
    folder = folder.parent_path();
  }
  return false;
}

std::optional<int> wholeNumber(const std::string& text) {
  int number = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc{} || stop != text.data() + text.size()) return std::nullopt;
  return number;
}

// "ttyUSB2" stands before "ttyUSB10".
bool inOrder(const UsbCable& one, const UsbCable& other) {
  return std::pair(one.name.size(), one.name) < std::pair(other.name.size(), other.name);
}

}  // namespace

std::string latencyFile(const std::string& folder, const std::string& name) {
  return folder + "/" + name + "/latency_timer";
}

std::vector<UsbCable> usbCables(const std::string& folder) {
  std::vector<UsbCable> cables;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    const std::string name = entry->path().filename();
    if (isOurCable(entry->path()))
      cables.push_back({name, wholeNumber(firstWord(latencyFile(folder, name)))});
  }
  std::ranges::sort(cables, inOrder);
  return cables;
}

int setLatency(const std::string& folder, const std::string& name, int milliseconds) {
  const int file = ::open(latencyFile(folder, name).c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC);
  if (file < 0) return errno;
  const std::string text = std::to_string(milliseconds) + "\n";
  const int error = ::write(file, text.data(), text.size()) < 0 ? errno : 0;
  ::close(file);
  return error;
}

}  // namespace zephon
