#include "platform/paths.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>

namespace zephon {
namespace {

constexpr std::string_view kHome = "$HOME";

// Without the separators at the end; the root stays as it is.
std::string trimmed(std::string path) {
  while (path.size() > 1 && path.back() == '/') path.pop_back();
  return path;
}

// The folder that an environment variable names; empty unless it is an absolute path.
std::string fromEnvironment(const char* variable) {
  const char* value = std::getenv(variable);
  return value && *value == '/' ? trimmed(value) : "";
}

std::string homeFolder() {
  std::string named = fromEnvironment("HOME");
  if (!named.empty()) return named;
  const passwd* user = ::getpwuid(::getuid());
  return user && user->pw_dir && *user->pw_dir == '/' ? trimmed(user->pw_dir) : "";
}

// A folder in the user's home, empty for a user without one.
std::string underHome(const std::string& rest) {
  const std::string home = homeFolder();
  return home.empty() ? "" : trimmed(home + rest);
}

std::string userFolder(const char* variable, const std::string& otherwise) {
  const std::string named = fromEnvironment(variable);
  return named.empty() ? underHome(otherwise) : named;
}

std::string ownFolder(const std::string& base) {
  return base.empty() ? "" : base + "/zephon";
}

bool isFolder(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// The value in a line such as XDG_DESKTOP_DIR="$HOME/Schreibtisch": "$HOME/..." or an absolute path, with a
// backslash ahead of characters that a shell would take for its own. Empty for any other line.
std::string desktopIn(std::string_view line) {
  constexpr std::string_view kKey = "XDG_DESKTOP_DIR=\"";
  const auto start = line.find_first_not_of(" \t");
  if (start == std::string_view::npos || !line.substr(start).starts_with(kKey)) return {};
  std::string value;
  for (std::size_t i = start + kKey.size(); i < line.size() && line[i] != '"'; ++i) {
    if (line[i] == '\\' && i + 1 < line.size()) ++i;
    value += line[i];
  }
  if (value.starts_with(kHome)) return underHome(value.substr(kHome.size()));
  return value.starts_with('/') ? trimmed(value) : "";
}

}  // namespace

std::string programFolder() {
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? "" : program.parent_path().string();
}

std::string resourceFolder(const std::string& program) {
  const std::filesystem::path path(program);
  std::string shared = (path.parent_path() / "share/zephon").string();
  return path.filename() == "bin" && isFolder(shared) ? shared : program;
}

std::string configFolder() {
  return ownFolder(userFolder("XDG_CONFIG_HOME", "/.config"));
}
std::string stateFolder() {
  return ownFolder(userFolder("XDG_STATE_HOME", "/.local/state"));
}

std::string desktopFolder() {
  std::string named;
  std::ifstream file(userFolder("XDG_CONFIG_HOME", "/.config") + "/user-dirs.dirs");
  for (std::string line; std::getline(file, line);) {
    const std::string found = desktopIn(line);
    if (!found.empty()) named = found;
  }
  if (!named.empty() && isFolder(named)) return named;
  for (const std::string& usual : {underHome("/Desktop"), underHome("")})
    if (isFolder(usual)) return usual;
  return "";
}

bool fileExists(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
}

bool canWrite(const std::string& folder) {
  return isFolder(folder) && ::faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

}  // namespace zephon
