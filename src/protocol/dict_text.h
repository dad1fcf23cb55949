#pragma once

#include <string>

#include "form/main.h"
#include "form/words.h"

namespace zephon {

// A text of the language in use; empty when the language has no such key.
inline std::string dictText(const Main& main, std::size_t key) {
  return key < main.dict.size() ? main.dict[key] : std::string();
}

// One of the tool's own words in the language in use.
inline std::string dictText(const Main& main, const Word& word) {
  return wordText(main.dict, word);
}

}  // namespace zephon
