#include "files/dictionary_file.h"

#include <algorithm>
#include <filesystem>

#include "platform/read_file.h"
#include "text/strings.h"
#include "text/windows1252.h"

namespace zephon {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kSuffix = ".dictionary";
constexpr std::size_t kMostBytes = 1U << 20;

std::vector<std::string> filesIn(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code fault;
  for (const auto& entry : std::filesystem::directory_iterator(folder, fault)) {
    if (!entry.is_directory(fault)) names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string faultOf(const DictionaryFile& file, std::string_view text) {
  if (text.find('\0') != std::string_view::npos || !isUtf8(text)) return "it is not UTF-8 text";
  if (file.entries.size() < kLeastEntries) {
    return "it has " + std::to_string(file.entries.size()) + " lines where " + std::to_string(kLeastEntries) +
           " are needed";
  }
  return {};
}

}  // namespace

DictionaryFile parseDictionary(std::string_view text) {
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  DictionaryFile file;
  file.entries = split(text, '\n');
  if (file.entries.back().empty()) file.entries.pop_back();  // behind the last line's end
  for (std::string& entry : file.entries) {
    if (!entry.empty() && entry.back() == '\r') entry.pop_back();
  }
  file.fault = faultOf(file, text);
  return file;
}

DictionaryFile readDictionary(const std::string& folder, const std::string& language) {
  const std::string path = folder + "/" + language + std::string(kSuffix);
  const FileContent content = readFile(path, kMostBytes);
  if (!content) return {{}, path + " is missing or can't be read"};
  DictionaryFile read = parseDictionary(content.bytes);
  if (!read.fault.empty()) read.fault = path + ": " + read.fault;
  return read;
}

std::vector<std::string> languagesAmong(const std::vector<std::string>& names) {
  std::vector<std::string> codes;
  for (const std::string& name : names) {
    const std::size_t suffix = findIgnoringCase(name, kSuffix);
    if (suffix != std::string::npos) codes.push_back(name.substr(0, suffix));
  }
  return codes;
}

std::vector<std::string> languagesIn(const std::string& folder) {
  return languagesAmong(filesIn(folder));
}

}  // namespace zephon
