#include "shell/console_dialogs.h"

#include <cstdio>

namespace zephon {

void ConsoleDialogs::message(const std::string& text, const std::string& advice) {
  std::fprintf(stderr, "zephon: %s\n", text.c_str());
  if (!advice.empty()) std::fprintf(stderr, "zephon: %s\n", advice.c_str());
}

bool ConsoleDialogs::yesNo(const std::string& /*question*/, const std::string& /*subject*/) {
  return false;
}

bool ConsoleDialogs::okCancel(const std::string& /*question*/, const std::string& /*title*/) {
  return false;
}

std::optional<std::string> ConsoleDialogs::prompt(const std::string& /*title*/, const std::string& /*text*/,
                                                  const std::string& /*answer*/) {
  return std::nullopt;
}

std::optional<std::string> ConsoleDialogs::openFile(const FileQuestion& /*question*/) {
  return std::nullopt;
}

std::optional<std::string> ConsoleDialogs::saveFile(const FileQuestion& /*question*/) {
  return std::nullopt;
}

}  // namespace zephon
