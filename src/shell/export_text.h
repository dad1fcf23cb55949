#pragma once

#include <string>

#include "form/main.h"
#include "shell/export_command.h"

namespace zephon {

// The text of an unattended export, in bytes of the file: heading, measurements, counters and events, each as
// it was read last. One byte a character (Windows-1252), lines ended by CR LF; docs/export.md tells them.
// `headed` is false for what goes behind an existing file.
std::string exportText(const Main& main, const ExportCommand& command, bool headed);

}  // namespace zephon
