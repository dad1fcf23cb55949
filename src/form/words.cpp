#include "form/words.h"

namespace zephon {

std::span<const Word> allWords() {
  static constexpr Word kAll[] = {
#define WORD(name, key, english) words::name,
#include "form/words.def"
#undef WORD
  };
  return kAll;
}

std::string wordText(std::span<const std::string> dict, const Word& word) {
  const bool given = word.key < dict.size() && !dict[word.key].empty();
  return given ? dict[word.key] : word.english;
}

// What is put in is not searched again: it may hold a percent sign of its own.
std::string filledText(std::string_view pattern, std::initializer_list<std::string_view> texts) {
  std::string filled;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const auto place = static_cast<std::size_t>(i + 1 < pattern.size() ? pattern[i + 1] - '1' : -1);
    if (pattern[i] == '%' && place < texts.size()) {
      filled += texts.begin()[place];
      ++i;
    } else {
      filled += pattern[i];
    }
  }
  return filled;
}

}  // namespace zephon
