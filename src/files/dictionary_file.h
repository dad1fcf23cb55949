#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zephon {

// A language is a plain text file, "<code>.dictionary", one entry a line, UTF-8: line N, counted from 0, is
// entry N. There are 271 entries at the least.
inline constexpr std::size_t kLeastEntries = 271;

enum class DictionaryFault {
  None,
  Missing,  // or not to be read
  NoText,   // it is not UTF-8
  Short     // it has fewer lines
};

struct DictionaryFile {
  std::vector<std::string> entries;
  DictionaryFault fault = DictionaryFault::None;
  std::string path = {};
  explicit operator bool() const { return fault == DictionaryFault::None; }
};

DictionaryFile parseDictionary(std::string_view text);

// The dictionary of a language in a folder.
DictionaryFile readDictionary(const std::string& folder, const std::string& language);

// Why a file is no dictionary, in the language of another one, English without one; empty when it is one.
std::string dictionaryFaultText(const DictionaryFile& file, std::span<const std::string> dict);

// The codes of the languages among the names of a folder, in the folder's order: what stands before
// ".dictionary" in each name that holds it, in any case of letters.
std::vector<std::string> languagesAmong(const std::vector<std::string>& names);

// The languages in a folder, in the order of their names.
std::vector<std::string> languagesIn(const std::string& folder);

}  // namespace zephon
