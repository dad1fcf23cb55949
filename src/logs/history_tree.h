#pragma once

#include "form/logs.h"
#include "logs/dated_tree.h"

namespace zephon {

// The tree of the historical log: years, months, days, half hours such as "10:00:00 - 10:30:00", and six
// values below each, such as "Average Power 118.25 (W)".
class HistoryTree : public DatedTree {
 public:
  // The table has to outlive the tree, and to stay as it is.
  HistoryTree(const LogTable<12>& history, std::span<const std::string> dict);

 protected:
  std::string rowText(std::size_t row) const override;
  std::string leafText(std::size_t row, std::size_t leaf) const override;
  Colour rowColour(std::size_t row) const override;

 private:
  const LogTable<12>& history_;
};

}  // namespace zephon
