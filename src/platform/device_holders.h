#pragma once

#include <string>
#include <vector>

namespace zephon {

// A program that has a device open.
struct DeviceHolder {
  int pid;
  std::string name;  // empty if the system doesn't tell
};

// Who has the device open or locked, by the list of processes under `processes` (/proc), ordered by pid. The
// open files of other users' programs can't be seen, their locks can.
std::vector<DeviceHolder> deviceHolders(const std::string& devicePath, const std::string& processes);

}  // namespace zephon
