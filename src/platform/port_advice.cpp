#include "platform/port_advice.h"

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <set>
#include <system_error>
#include <vector>

#include "platform/device_holders.h"
#include "platform/error_text.h"

namespace zephon {
namespace {

namespace fs = std::filesystem;

constexpr int kMostPorts = 256;

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

std::vector<std::string> filesIn(const std::string& folder) {
  std::vector<std::string> paths;
  std::error_code error;
  for (fs::directory_iterator one(folder, error), end; !error && one != end; one.increment(error)) {
    paths.push_back(one->path());
  }
  std::ranges::sort(paths);
  return paths;
}

std::string withNote(std::string text, const std::string& note) {
  return text.append(" (").append(note).append(")");
}

// "COM2 (/dev/ttyUSB1)" for every COM number that leads to something now, then the devices that none leads
// to.
std::vector<std::string> presentPorts(const PortFolders& folders) {
  std::vector<std::string> ports;
  std::set<std::string> reached;
  for (int number = 1; number <= kMostPorts; ++number) {
    const std::string com = "COM" + std::to_string(number);
    const std::string path = devicePath(folders, com);
    if (::access(path.c_str(), F_OK) != 0) continue;
    ports.push_back(withNote(com, path));
    reached.insert(path);
  }
  for (const std::string& path : filesIn(folders.devices)) {
    const std::string name = fs::path(path).filename();
    if (!name.starts_with("ttyUSB") && !name.starts_with("ttyACM")) continue;
    if (!reached.contains(path)) ports.push_back(path);
  }
  return ports;
}

PortAdvice missing(const std::string& path, const PortFolders& folders) {
  std::error_code error;
  const std::string target = fs::read_symlink(path, error);
  const std::string way = error ? path : path + " -> " + target;
  const std::vector<std::string> ports = presentPorts(folders);
  if (ports.empty()) return {PortTrouble::MissingAlone, {way}};
  return {PortTrouble::Missing, {way, joined(ports)}};
}

// Why the user is not let in.
PortTrouble barrier(const struct stat& status, const std::string& user) {
  if (status.st_uid == ::geteuid()) return PortTrouble::OwnerShut;
  if ((status.st_mode & 0060) != 0060) return PortTrouble::GroupShut;
  if (actsWithGroup(status.st_gid)) return PortTrouble::BeyondMode;
  return listedInGroup(status.st_gid, user) ? PortTrouble::NextLogin : PortTrouble::NotInGroup;
}

PortAdvice forbidden(const std::string& path) {
  const std::string user = userName(::geteuid());
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0)
    return {PortTrouble::Hidden, {path, user, fs::path(path).parent_path()}};
  std::array<char, 8> mode{};
  std::snprintf(mode.data(), mode.size(), "%04o", static_cast<unsigned>(status.st_mode & 07777));
  const std::string group = groupName(status.st_gid);
  return {barrier(status, user),
          {path, userName(status.st_uid) + ':' + group + ' ' + mode.data(), user, group}};
}

PortAdvice busy(const std::string& path, const std::string& processes) {
  std::vector<std::string> names;
  for (const DeviceHolder& holder : deviceHolders(path, processes))
    names.push_back(withNote(holder.name.empty() ? "?" : holder.name, std::to_string(holder.pid)));
  if (names.empty()) return {PortTrouble::BusyHidden, {path, userName(::geteuid())}};
  return {PortTrouble::Busy, {path, joined(names)}};
}

}  // namespace

PortAdvice portAdvice(const std::string& devicePath, int error, const AdviceRoots& roots) {
  if (devicePath.empty()) return {PortTrouble::NoPortName};
  const bool stands = ::access(devicePath.c_str(), F_OK) == 0 || errno == EACCES;
  if (!stands) return missing(devicePath, roots.folders);
  switch (error) {
    case EACCES:
    case EPERM:
      return forbidden(devicePath);
    case EBUSY:
      return busy(devicePath, roots.processes);
    case ENOTTY:
      return {PortTrouble::NoSerial, {devicePath}};
    case ENOENT:
      return {PortTrouble::BackAgain, {devicePath}};
    case EIO:
    case ENXIO:
    case ENODEV:
      return {PortTrouble::NoDevice, {devicePath}};
    default:
      return {PortTrouble::Other, {devicePath, systemErrorText(error)}};
  }
}

}  // namespace zephon
