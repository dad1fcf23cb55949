#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace zephon {

// A folder of a test's own, gone with everything in it at the end.
class TempFolder {
 public:
  TempFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "zephon-test-XXXXXX").string();
    if (::mkdtemp(name.data())) path_ = name;
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder() {
    std::error_code ignored;
    if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
  }

  // The path of `name` in the folder, of the folder itself for none.
  std::string operator/(const std::string& name) const { return name.empty() ? path_ : path_ + "/" + name; }

  // Makes a file and the folders above it; returns its path.
  std::string put(const std::string& name, const std::string& bytes) const {
    const std::filesystem::path file(*this / name);
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
    return file.string();
  }

  std::string get(const std::string& name) const {
    std::ifstream file(*this / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

 private:
  std::string path_;
};

}  // namespace zephon
