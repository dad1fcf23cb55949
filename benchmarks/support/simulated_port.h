#pragma once

#include <string>
#include <vector>

#include "support/child_process.h"

namespace zephon::benchmarks {

// A folder of its own, gone at the end.
class Folder {
 public:
  Folder();
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder();
  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

// The simulated device in a process of its own, on a pseudo-terminal that stands as COM1 in folder().
class SimulatedPort {
 public:
  // `options` are the simulator's own; the site has no disturbances.
  explicit SimulatedPort(std::vector<std::string> options);

  const std::string& folder() const { return ports_.path(); }
  // Ends the device in the middle of whatever it does: its line hangs up.
  void kill() { process_.kill(); }

 private:
  Folder ports_;
  ChildProcess process_;
};

}  // namespace zephon::benchmarks
