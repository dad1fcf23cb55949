#include "platform/line_settings.h"

#include <charconv>
#include <string>

namespace zephon {
namespace {

// Digits alone, without a sign, of a number from `least` to `most`.
bool parseNumber(std::string_view text, int least, int most, int& value) {
  if (text.empty() || text.front() == '-') return false;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  return error == std::errc{} && stop == end && value >= least && value <= most;
}

bool parseParity(std::string_view text, char& parity) {
  if (text != "N" && text != "E" && text != "O") return false;
  parity = text.front();
  return true;
}

// Takes the next blank-separated word off the front of `text`; empty at its end.
std::string_view nextWord(std::string_view& text) {
  const auto start = text.find_first_not_of(' ');
  if (start == std::string_view::npos) return {};
  text.remove_prefix(start);
  const std::string_view word = text.substr(0, text.find(' '));
  text.remove_prefix(word.size());
  return word;
}

// One word; its key is added to `seen` by its first letter.
bool applyWord(std::string_view word, LineState& state, std::string& seen) {
  const auto equals = word.find('=');
  if (equals == std::string_view::npos || seen.find(word.front()) != std::string::npos) return false;
  seen += word.front();
  const std::string_view key = word.substr(0, equals);
  const std::string_view value = word.substr(equals + 1);
  if (key == "baud") return parseNumber(value, 1, 4'000'000, state.baud);
  if (key == "parity") return parseParity(value, state.parity);
  if (key == "data") return parseNumber(value, 5, 8, state.dataBits);
  if (key == "stop") return parseNumber(value, 1, 2, state.stopBits);
  return false;
}

}  // namespace

std::optional<int> comNumberOf(std::string_view portName) {
  int number = 0;
  if (!portName.starts_with("COM") || !parseNumber(portName.substr(3), 1, 9999, number)) return std::nullopt;
  return number;
}

bool applySettings(std::string_view settings, LineState& state) {
  LineState changed = state;
  std::string seen;
  for (std::string_view word = nextWord(settings); !word.empty(); word = nextWord(settings)) {
    if (!applyWord(word, changed, seen)) return false;
  }
  if (seen.empty()) return false;
  state = changed;
  return true;
}

}  // namespace zephon
