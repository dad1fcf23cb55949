#include "simulator/program/port_link.h"

#include <unistd.h>

#include <system_error>

namespace zephon::simulator {

namespace fs = std::filesystem;

std::string PortLink::put(const fs::path& folder, int number, const std::string& device) {
  const std::string name = "COM" + std::to_string(number);
  const fs::path link = folder / name;
  const fs::path made = folder / ("." + name + "." + std::to_string(::getpid()));
  std::error_code error;
  fs::create_directories(folder, error);
  if (error) return folder.string() + ": " + error.message();
  const auto status = fs::symlink_status(link, error);
  if (fs::exists(status) && !fs::is_symlink(status)) return link.string() + ": is no link";
  fs::remove(made, error);
  fs::create_symlink(device, made, error);
  if (!error) fs::rename(made, link, error);
  if (error) return link.string() + ": " + error.message();
  path_ = link;
  device_ = device;
  return {};
}

PortLink::~PortLink() {
  std::error_code error;
  if (!path_.empty() && fs::read_symlink(path_, error) == device_) fs::remove(path_, error);
}

}  // namespace zephon::simulator
