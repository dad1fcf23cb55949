#include "shell/export_command.h"

#include "text/strings.h"

namespace zephon {
namespace {

struct Switch {
  std::string_view text;
  bool ExportCommand::*wanted;
};
constexpr Switch kSwitches[] = {{"-a", &ExportCommand::append},
                                {"-m", &ExportCommand::measurements},
                                {"-t", &ExportCommand::events},
                                {"-c", &ExportCommand::counters}};

// False for a word that looks like a switch and holds none.
bool takeWord(std::string_view word, ExportCommand& command) {
  bool known = !word.starts_with('-');
  for (const Switch& one : kSwitches) {
    if (word.find(one.text) == std::string_view::npos) continue;
    command.*one.wanted = true;
    known = true;
  }
  return known;
}

}  // namespace

std::optional<ExportCommand> parseExport(std::string_view commandLine) {
  ExportCommand command;
  bool nameNext = false;
  bool named = false;
  for (const std::string& word : split(commandLine, ' ')) {
    if (nameNext) {
      command.file = word;
      nameNext = false;
    } else if (word == "/o" && !named) {
      nameNext = named = true;
    } else if (!takeWord(word, command)) {
      return {};
    }
  }
  if (command.file.empty()) return {};
  if (!command.measurements && !command.events && !command.counters)
    command.measurements = command.events = command.counters = true;
  return command;
}

}  // namespace zephon
