#include "files/dictionary_file.h"

#include <algorithm>
#include <filesystem>

#include "form/words.h"
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

DictionaryFault faultOf(const DictionaryFile& file, std::string_view text) {
  if (text.find('\0') != std::string_view::npos || !isUtf8(text)) return DictionaryFault::NoText;
  return file.entries.size() < kLeastEntries ? DictionaryFault::Short : DictionaryFault::None;
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
  if (!content) return {{}, DictionaryFault::Missing, path};
  DictionaryFile read = parseDictionary(content.bytes);
  read.path = path;
  return read;
}

std::string dictionaryFaultText(const DictionaryFile& file, std::span<const std::string> dict) {
  switch (file.fault) {
    case DictionaryFault::None:
      break;
    case DictionaryFault::Missing:
      return filledText(wordText(dict, words::kNoDictionaryFile), {file.path});
    case DictionaryFault::NoText:
      return filledText(wordText(dict, words::kNoDictionaryText), {file.path});
    case DictionaryFault::Short:
      return filledText(wordText(dict, words::kShortDictionary),
                        {file.path, std::to_string(file.entries.size()), std::to_string(kLeastEntries)});
  }
  return {};
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
