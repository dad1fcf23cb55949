#pragma once

#include <optional>
#include <string>
#include <vector>

#include "form/main.h"

namespace zephon {

// The findings beside the log. A line that is chosen has the rows behind it picked out, in the tree of the
// log and in its graph.

// A finding as it is told: "01. Power usage is trending upward. ..."
struct ListedFinding {
  std::optional<std::size_t> slot;  // none of the line that says that there is no finding
  std::string text;
};

// The raised findings in the order of their slots, numbered from 1, or the one line that there is none.
std::vector<ListedFinding> listedFindings(const Findings& findings);

// Fills and shows findingsList.
void showFindings(Main& main);

// Picks out the rows of the chosen line; without one, or without rows behind it, none.
void pointOutFinding(Main& main);

}  // namespace zephon
