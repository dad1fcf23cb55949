#include "shell/dictionary_file.h"

#include "text/strings.h"
#include "text/windows1252.h"

namespace zephon {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kSuffix = ".dictionary";

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

std::vector<std::string> languagesAmong(const std::vector<std::string>& names) {
  std::vector<std::string> codes;
  for (const std::string& name : names) {
    const std::size_t suffix = findIgnoringCase(name, kSuffix);
    if (suffix != std::string::npos) codes.push_back(name.substr(0, suffix));
  }
  return codes;
}

}  // namespace zephon
