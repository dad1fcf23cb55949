#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/fault.h"
#include "simulator/options.h"
#include "simulator/profile.h"
#include "simulator/site.h"

namespace zephon::simulator {

// What the command line asks for.
struct Arguments {
  Profile profile;
  Options options;
  std::vector<Fault> faults;
  char outletFault = 0;
  Held held;  // what the meters are to show all the time
  std::string portsFolder;
  int port = 1;
  bool quiet = false;
  bool listCommands = false;
  bool help = false;
  std::string error;  // empty, or what is wrong with the command line, in one line
};

// `portsFolder` is where the link goes if the command line names no folder; `now` is universal time.
Arguments parseArguments(std::span<const std::string_view> words, std::string_view portsFolder,
                         std::int64_t now);

std::string helpText();

}  // namespace zephon::simulator
