#include "support/simulated_port.h"

#include <stdlib.h>

#include <cstdio>
#include <filesystem>

namespace zephon::benchmarks {
namespace {

std::vector<std::string> command(const std::string& ports, std::vector<std::string> options) {
  std::vector<std::string> words = {ZEPHON_SIMULATOR, "--steady", "--ports", ports};
  words.insert(words.end(), options.begin(), options.end());
  return words;
}

}  // namespace

Folder::Folder() {
  std::string name = (std::filesystem::temp_directory_path() / "zephon-bench-XXXXXX").string();
  if (::mkdtemp(name.data())) path_ = name;
}

Folder::~Folder() {
  std::error_code ignored;
  if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
}

// The first line tells where the port is, and so that it is there.
SimulatedPort::SimulatedPort(std::vector<std::string> options)
    : process_(command(ports_.path(), std::move(options))) {
  if (process_.readLine().empty()) {
    std::fputs("the simulator does not start\n", stderr);
    std::exit(EXIT_FAILURE);
  }
}

}  // namespace zephon::benchmarks
