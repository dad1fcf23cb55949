#pragma once

#include <array>
#include <span>
#include <string>
#include <vector>

#include "screen/tree.h"

namespace zephon {

// Where the years, months and days of a table's rows begin. Rows are taken in their order: one whose year
// differs from the row before begins a year, a month and a day, and so on down. A year that comes back begins
// anew.
struct DateGroups {
  struct Group {
    std::size_t first = 0;   // of the next finer groups; of the rows for a day
    std::size_t parent = 0;  // of the next coarser groups
    double value = 0;
  };
  static constexpr std::size_t kLevels = 3;
  std::array<std::vector<Group>, kLevels> levels;  // years, months, days
  std::size_t rows = 0;

  void add(const std::array<double, kLevels>& yearMonthDay);
};

// The groups of a table's first rows; columns 0, 1 and 2 are year, day and month.
template <class Table>
DateGroups dateGroups(const Table& table, std::size_t rows) {
  DateGroups groups;
  for (std::size_t r = 0; r < rows; ++r) groups.add({table[r][0], table[r][2], table[r][1]});
  return groups;
}

// A tree of years, months, days and rows, each row with the same count of leaves below it. Nodes are numbered
// level by level: the root, the years, the months, the days, the rows, the leaves.
class DatedTree : public TreeSource {
 public:
  DatedTree(DateGroups groups, std::size_t leavesARow, std::span<const std::string> dict);

  std::size_t childCount(TreeNode node) const override;
  TreeNode child(TreeNode node, std::size_t index) const override;
  TreeNode parent(TreeNode node) const override;
  std::size_t indexInParent(TreeNode node) const override;
  std::string text(TreeNode node) const override;
  Colour colour(TreeNode node) const override;
  bool expanded(TreeNode node) const override;
  std::optional<TreeNode> nodeOfRow(std::size_t row) const override;
  std::optional<std::size_t> rowOfNode(TreeNode node) const override;

 protected:
  virtual std::string rowText(std::size_t row) const = 0;
  virtual std::string leafText(std::size_t row, std::size_t leaf) const = 0;
  virtual Colour rowColour(std::size_t row) const = 0;
  const std::vector<std::string>& dict() const { return dict_; }

 private:
  enum Level : std::size_t { kYear, kMonth, kDay, kRow, kLeaf, kNone };
  struct Place {
    std::size_t level;
    std::size_t index;  // within the level
  };
  struct Range {
    std::size_t first;
    std::size_t count;
  };

  Place placeOf(TreeNode node) const;
  TreeNode nodeAt(std::size_t level, std::size_t index) const;
  Range childrenOf(const Place& place) const;
  std::size_t parentIndex(const Place& place) const;

  DateGroups groups_;
  std::size_t leavesARow_;
  std::array<std::size_t, kNone + 1> starts_{};  // the first node of each level; at the end, past the last
  std::vector<std::string> dict_;
};

// "hh:mm:ss" of a row's columns 3 to 5.
std::string timeOfDay(std::span<const double> row);

}  // namespace zephon
