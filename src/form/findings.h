#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "form/logs.h"

namespace zephon {

inline constexpr std::size_t kFindingSlots = 56;

// What is told when no slot is raised, in every language.
inline constexpr char kNothingFound[] =
    "Analysis of the acquired data shows no indication of improper connected "
    "equipment operation or power quality concerns.";

// Numbers of a table's rows, ascending, each once.
using RowNumbers = std::vector<std::size_t>;

// What the expert analysis found last, a slot a finding. Slots are told in their order, whatever raised them.
struct Findings {
  std::array<bool, kFindingSlots> findingFlags{};
  std::array<std::string, kFindingSlots> findingTexts;  // dictionary keys 215 to 270; analyses complete some
  // The rows behind each slot that is raised; none behind one that no row tells.
  std::array<RowNumbers, kFindingSlots> rows;
  ShownLog log = ShownLog::None;  // whose rows these are
  std::string dateRange;          // of that log: "05/01/2013 To 05/31/2013"; empty when nothing was analysed
  // Writes the report of what stands here. Whoever can do that sets it; until then there is none.
  std::function<void()> report;
};

}  // namespace zephon
