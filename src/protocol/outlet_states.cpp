#include "protocol/outlet_states.h"

#include "text/strings.h"

namespace zephon {
namespace {

constexpr OutletState fault(char letter, std::string_view word, std::size_t key) {
  return {letter, word, false, false, false, false, true, 71, 0, key};
}

constexpr OutletState kStates[] = {
    {'0', "Of", false, true, false, false, false, 72, 0, 0},
    {'1', "On", true, true, false, true, false, 0, 0, 0},
    {'C', "Cy", false, false, true, false, false, 71, 73, 0},
    fault('G', "NG", 74),
    fault('R', "RP", 75),
    fault('S', "20", 76),
    fault('T', "", 77),
    fault('V', "", 78),
};

bool tells(std::string_view reply, int modelLine, const OutletState& state) {
  if (modelLine == 0) return !reply.empty() && reply.front() == state.letter;
  return !state.word.empty() && findIgnoringCase(reply, state.word) != std::string_view::npos;
}

}  // namespace

const OutletState* outletState(std::string_view reply, int modelLine) {
  for (const OutletState& state : kStates) {
    if (tells(reply, modelLine, state)) return &state;
  }
  return nullptr;
}

}  // namespace zephon
