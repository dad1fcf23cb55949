#pragma once

#include <cstddef>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace zephon {

// One of the tool's own words. The language file has it in line `key`, counted from 0; the English stands in
// for it where the file ends before.
struct Word {
  std::size_t key;
  const char* english;
};

namespace words {
#define WORD(name, key, english) inline constexpr Word name{key, english};
#include "form/words.def"
#undef WORD
}  // namespace words

// Every word there is, in the table's order.
std::span<const Word> allWords();

// The word in the language of a dictionary.
std::string wordText(std::span<const std::string> dict, const Word& word);

// A pattern with "%1" replaced by the first text, "%2" by the second.
std::string filledText(std::string_view pattern, std::initializer_list<std::string_view> texts);

}  // namespace zephon
