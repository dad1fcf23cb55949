#pragma once

#include <string>

namespace zephon {

// Folders, each an absolute path without a separator at its end.

// Where the running program lies; empty if the system doesn't tell.
std::string programFolder();

// Where a program that lies in `program` has its dictionaries, fonts and pictures. Of an installed one, which
// lies in a "bin", that is share/zephon beside it; otherwise it is the program's own folder.
std::string resourceFolder(const std::string& program);

// The user's own folders for this program, which need not exist yet: $XDG_CONFIG_HOME and $XDG_STATE_HOME, or
// where those name no absolute path ~/.config and ~/.local/state; then "/zephon". Empty for a user without a
// home.
std::string configFolder();
std::string stateFolder();

// The user's desktop: the one that user-dirs.dirs among the configuration names, or ~/Desktop, or the home folder
// itself, as desktops without one have it. Only one that stands; otherwise empty.
std::string desktopFolder();

// True if the path leads, through links, to something that is no folder: a file, a device, a pipe. False for
// a folder, for a link that leads nowhere, and for what may not be looked at.
bool fileExists(const std::string& path);

// True if the path is a folder in which files can be made.
bool canWrite(const std::string& folder);

}  // namespace zephon
