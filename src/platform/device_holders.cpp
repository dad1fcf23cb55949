#include "platform/device_holders.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <set>
#include <system_error>

namespace zephon {
namespace {

namespace fs = std::filesystem;

// The number of a process folder, 0 for any other name.
int pidOf(const std::string& name) {
  int pid = 0;
  const auto [stop, error] = std::from_chars(name.data(), name.data() + name.size(), pid);
  return error == std::errc{} && stop == name.data() + name.size() && pid > 0 ? pid : 0;
}

bool hasOpen(const fs::path& process, const fs::path& device) {
  std::error_code error;
  for (fs::directory_iterator file(process / "fd", error), end; !error && file != end;
       file.increment(error)) {
    std::error_code unreadable;
    if (fs::read_symlink(file->path(), unreadable) == device) return true;
  }
  return false;
}

void addOpeners(const fs::path& processes, const fs::path& device, std::set<int>& pids) {
  std::error_code error;
  for (fs::directory_iterator one(processes, error), end; !error && one != end; one.increment(error)) {
    const int pid = pidOf(one->path().filename());
    if (pid && hasOpen(one->path(), device)) pids.insert(pid);
  }
}

// Lines such as "1: FLOCK  ADVISORY  WRITE 708 00:15:1093 0 EOF", device numbers in hexadecimal.
void addLockers(const fs::path& processes, const fs::path& device, std::set<int>& pids) {
  struct stat status {};
  if (::stat(device.c_str(), &status) != 0) return;
  std::ifstream locks(processes / "locks");
  for (std::string line; std::getline(locks, line);) {
    int pid = 0;
    unsigned major = 0;
    unsigned minor = 0;
    unsigned long inode = 0;
    if (std::sscanf(line.c_str(), "%*s FLOCK %*s %*s %d %x:%x:%lu", &pid, &major, &minor, &inode) != 4)
      continue;
    if (pid <= 0 || inode != status.st_ino) continue;
    if (major == gnu_dev_major(status.st_dev) && minor == gnu_dev_minor(status.st_dev)) pids.insert(pid);
  }
}

}  // namespace

std::vector<DeviceHolder> deviceHolders(const std::string& devicePath, const std::string& processes) {
  std::error_code error;
  const fs::path device = fs::canonical(devicePath, error);
  if (error) return {};
  std::set<int> pids;
  addOpeners(processes, device, pids);
  addLockers(processes, device, pids);
  std::vector<DeviceHolder> holders;
  for (const int pid : pids) {
    std::ifstream file(fs::path(processes) / std::to_string(pid) / "comm");
    std::string name;
    std::getline(file, name);
    holders.push_back({pid, name});
  }
  return holders;
}

}  // namespace zephon
