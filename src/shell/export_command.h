#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zephon {

// What the command line of an unattended export asks for.
struct ExportCommand {
  std::string file;
  bool append = false;
  bool measurements = false;
  bool events = false;
  bool counters = false;
  bool operator==(const ExportCommand&) const = default;
};

inline constexpr std::string_view kExportUsage = "usage: zephon /o FILE [-m] [-t] [-c] [-a]";

// The file's name stands between "/o " and the next blank. A switch counts when one of the other words holds
// it; without "-m", "-t" and "-c" all three sections are wanted. Nothing without a name, and for a word that
// looks like a switch and is none.
std::optional<ExportCommand> parseExport(std::string_view commandLine);

}  // namespace zephon
