#include "platform/port_advice.h"

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <vector>

#include "platform/device_holders.h"
#include "platform/error_text.h"
#include "platform/line_settings.h"

namespace zephon {
namespace {

namespace fs = std::filesystem;

std::string joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : ", ") + word;
  return text;
}

std::string userName(uid_t id) {
  const passwd* entry = ::getpwuid(id);
  return entry ? entry->pw_name : std::to_string(id);
}

std::string groupName(gid_t id) {
  const group* entry = ::getgrgid(id);
  return entry ? entry->gr_name : std::to_string(id);
}

// The groups that this very process acts with.
bool actsWithGroup(gid_t id) {
  std::vector<gid_t> groups(static_cast<std::size_t>(std::max(::getgroups(0, nullptr), 0)));
  const int count = ::getgroups(static_cast<int>(groups.size()), groups.data());
  groups.resize(static_cast<std::size_t>(std::max(count, 0)));
  return ::getegid() == id || std::ranges::find(groups, id) != groups.end();
}

// What the group's list says, which a session that began earlier does not know yet.
bool listedInGroup(gid_t id, const std::string& user) {
  const group* entry = ::getgrgid(id);
  if (!entry) return false;
  for (char** member = entry->gr_mem; *member; ++member) {
    if (user == *member) return true;
  }
  return false;
}

std::vector<std::string> namesIn(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::directory_iterator one(folder, error), end; !error && one != end; one.increment(error)) {
    names.push_back(one->path().filename());
  }
  std::ranges::sort(names);
  return names;
}

// "COM2 (/dev/ttyUSB1)" for every device that a COM number leads to now, and the devices that none leads to.
std::vector<std::string> presentPorts(const PortFolders& folders) {
  std::vector<std::string> ports;
  const std::vector<std::string> named =
      folders.ports.empty() ? std::vector<std::string>{} : namesIn(folders.ports);
  for (const std::string& name : named) {
    const std::string path = folders.ports + "/" + name;
    if (comNumberOf(name) && ::access(path.c_str(), F_OK) == 0) ports.push_back(name + " (" + path + ")");
  }
  for (const std::string& name : namesIn(folders.devices)) {
    if (!name.starts_with("ttyUSB") && !name.starts_with("ttyACM")) continue;
    const std::string path = folders.devices + "/" + name;
    const std::string com = "COM" + std::to_string(std::atoi(name.c_str() + 6) + 1);
    const bool reached = devicePath(folders, com) == path;
    ports.push_back(reached ? com + " (" + path + ")" : path + " (no COM number leads there)");
  }
  return ports;
}

std::string missing(const std::string& path, const PortFolders& folders) {
  std::string text = path;
  std::error_code error;
  const fs::path target = fs::read_symlink(path, error);
  text += error ? " does not exist" : " leads to " + target.string() + ", which does not exist";
  const std::vector<std::string> ports = presentPorts(folders);
  if (ports.empty()) return text + ", and no other serial port is there: plug in the cable.";
  return text + ": plug in the cable, or choose another port. There are: " + joined(ports) + ".";
}

// What the user could do to be let in.
std::string groupAdvice(const std::string& path, const struct stat& status) {
  const std::string user = userName(::geteuid());
  const std::string name = groupName(status.st_gid);
  if (status.st_uid == ::geteuid()) return "its owner may not read and write it: chmod u+rw " + path;
  if ((status.st_mode & 0060) != 0060)
    return "that mode keeps the group out: sudo chown " + user + " " + path;
  if (actsWithGroup(status.st_gid))
    return user + " is in that group, so something beyond this mode forbids it";
  if (listedInGroup(status.st_gid, user))
    return user + " is in that group from the next log-in on: log out and in again";
  return user + " is not in that group: sudo usermod -aG " + name + " " + user +
         ", then log out and in again";
}

std::string forbidden(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) {
    const std::string folder = fs::path(path).parent_path();
    return userName(::geteuid()) + " may not look at " + path + ": check the permissions of the folder " +
           folder + ".";
  }
  std::array<char, 8> mode{};
  std::snprintf(mode.data(), mode.size(), "%04o", static_cast<unsigned>(status.st_mode & 07777));
  return "No permission to use " + path + " (owner " + userName(status.st_uid) + ", group " +
         groupName(status.st_gid) + ", mode " + mode.data() + "): " + groupAdvice(path, status) + ".";
}

std::string busy(const std::string& path, const std::string& processes) {
  std::vector<std::string> names;
  for (const DeviceHolder& holder : deviceHolders(path, processes)) {
    const std::string what = holder.pid == ::getpid() ? "this program itself" : holder.name;
    names.push_back((what.empty() ? "a program" : what) + " (process " + std::to_string(holder.pid) + ")");
  }
  if (names.empty()) {
    return path + " is in use by a program that " + userName(::geteuid()) + " may not see: sudo fuser -v " +
           path + " names it.";
  }
  return path + " is in use by " + joined(names) + ": end that program, or choose another port.";
}

}  // namespace

std::string portAdvice(const std::string& devicePath, int error, const AdviceRoots& roots) {
  if (devicePath.empty())
    return "That is no port name: a port is called COM and a number, COM1 for the first.";
  const bool stands = ::access(devicePath.c_str(), F_OK) == 0 || errno == EACCES;
  if (!stands) return missing(devicePath, roots.folders);
  switch (error) {
    case EACCES:
    case EPERM:
      return forbidden(devicePath);
    case EBUSY:
      return busy(devicePath, roots.processes);
    case ENOTTY:
      return devicePath + " is no serial port: link the COM number to one.";
    case ENOENT:
      return devicePath + " was missing a moment ago and is there now: try again.";
    case EIO:
    case ENXIO:
    case ENODEV:
      return devicePath + " stands, but no device answers behind it: unplug the cable and plug it in again.";
    default:
      return devicePath + " could not be opened: " + systemErrorText(error) + ".";
  }
}

}  // namespace zephon
