#pragma once

#include <cstddef>
#include <string_view>

namespace zephon {

// What the device can say of its outlets, and what the three buttons then show. Keys are of the dictionary; 0
// is no text.
struct OutletState {
  char letter;            // first line: the reply's first character; 0 for none
  std::string_view word;  // second line: found anywhere in the reply, in either case; empty for none
  bool on, mayTurn;       // oOnBtn: value, enabled
  bool cycles, mayCycle;  // oCycBtn: value, enabled
  bool fault;             // oFltBtn's value
  std::size_t offKey;     // oOnBtn's text while off
  std::size_t cycleKey;   // oCycBtn's text while cycling
  std::size_t faultKey;   // oFltBtn's text; 0 leaves it as it is
};

// The state that a reply tells, the first in the table's order; null for a reply that fits none.
const OutletState* outletState(std::string_view reply, int modelLine);

}  // namespace zephon
