#pragma once

#include <filesystem>
#include <string>

namespace zephon::simulator {

// The name under which other programs find a serial port: a symbolic link COMn in a folder of ports. It lives
// as long as this object, unless somebody else has put another one in its place meanwhile.
class PortLink {
 public:
  PortLink() = default;
  PortLink(const PortLink&) = delete;
  PortLink& operator=(const PortLink&) = delete;
  ~PortLink();

  // Puts the link in the folder, which is made if it is missing, in one step: who looks sees the old one or
  // the new one. A file that is no link is left alone. What went wrong, or an empty text.
  std::string put(const std::filesystem::path& folder, int number, const std::string& device);

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
  std::string device_;
};

}  // namespace zephon::simulator
