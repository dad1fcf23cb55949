#include "logs/dated_tree.h"

#include <algorithm>

#include "protocol/month_names.h"
#include "text/picture.h"

namespace zephon {

void DateGroups::add(const std::array<double, kLevels>& yearMonthDay) {
  std::size_t level = 0;
  while (level < kLevels && !levels[level].empty() && levels[level].back().value == yearMonthDay[level])
    ++level;
  for (; level < kLevels; ++level) {
    const std::size_t parent = level == 0 ? 0 : levels[level - 1].size() - 1;
    const std::size_t first = level + 1 < kLevels ? levels[level + 1].size() : rows;
    levels[level].push_back({first, parent, yearMonthDay[level]});
  }
  ++rows;
}

DatedTree::DatedTree(DateGroups groups, std::size_t leavesARow, std::span<const std::string> dict)
    : groups_(std::move(groups)), leavesARow_(leavesARow), dict_(dict.begin(), dict.end()) {
  std::size_t next = kTreeRoot + 1;
  for (std::size_t level = kYear; level < kNone; ++level) {
    starts_[level] = next;
    if (level < kRow) next += groups_.levels[level].size();
    if (level == kRow) next += groups_.rows;
    if (level == kLeaf) next += groups_.rows * leavesARow_;
  }
  starts_[kNone] = next;
}

// The root, and any number that is no node, has no level.
DatedTree::Place DatedTree::placeOf(TreeNode node) const {
  if (node == kTreeRoot || node >= starts_[kNone]) return {kNone, 0};
  std::size_t level = kLeaf;
  while (node < starts_[level]) --level;
  return {level, node - starts_[level]};
}

TreeNode DatedTree::nodeAt(std::size_t level, std::size_t index) const {
  return static_cast<TreeNode>(starts_[level] + index);
}

DatedTree::Range DatedTree::childrenOf(const Place& place) const {
  if (place.level == kNone) return {0, groups_.levels[kYear].size()};
  if (place.level == kRow) return {place.index * leavesARow_, leavesARow_};
  if (place.level == kLeaf) return {0, 0};
  const auto& groups = groups_.levels[place.level];
  const std::size_t finer = place.level == kDay ? groups_.rows : groups_.levels[place.level + 1].size();
  const std::size_t end = place.index + 1 < groups.size() ? groups[place.index + 1].first : finer;
  return {groups[place.index].first, end - groups[place.index].first};
}

std::size_t DatedTree::childCount(TreeNode node) const {
  return childrenOf(placeOf(node)).count;
}

TreeNode DatedTree::child(TreeNode node, std::size_t index) const {
  const Place place = placeOf(node);
  return nodeAt(place.level == kNone ? std::size_t{kYear} : place.level + 1, childrenOf(place).first + index);
}

std::size_t DatedTree::parentIndex(const Place& place) const {
  if (place.level == kLeaf) return place.index / leavesARow_;
  if (place.level < kRow) return groups_.levels[place.level][place.index].parent;
  const auto& days = groups_.levels[kDay];
  const auto next = std::upper_bound(days.begin(), days.end(), place.index,
                                     [](std::size_t row, const auto& day) { return row < day.first; });
  return static_cast<std::size_t>(next - days.begin()) - 1;
}

TreeNode DatedTree::parent(TreeNode node) const {
  const Place place = placeOf(node);
  return place.level == kYear || place.level == kNone ? kTreeRoot
                                                      : nodeAt(place.level - 1, parentIndex(place));
}

std::size_t DatedTree::indexInParent(TreeNode node) const {
  const Place place = placeOf(node);
  if (place.level == kYear || place.level == kNone) return place.index;
  return place.index - childrenOf({place.level - 1, parentIndex(place)}).first;
}

std::string DatedTree::text(TreeNode node) const {
  const Place place = placeOf(node);
  if (place.level == kNone) return {};
  if (place.level == kRow) return rowText(place.index);
  if (place.level == kLeaf) return leafText(place.index / leavesARow_, place.index % leavesARow_);
  const double value = groups_.levels[place.level][place.index].value;
  if (place.level == kMonth) return monthString(value, dict_);
  return place.level == kYear ? "20" + formatPicture(value, "00") : shortestText(value);
}

Colour DatedTree::colour(TreeNode node) const {
  const Place place = placeOf(node);
  return place.level == kRow ? rowColour(place.index) : kBlack;
}

bool DatedTree::expanded(TreeNode node) const {
  return placeOf(node).level == kYear;
}

std::optional<TreeNode> DatedTree::nodeOfRow(std::size_t row) const {
  return row < groups_.rows ? std::optional(nodeAt(kRow, row)) : std::nullopt;
}

std::optional<std::size_t> DatedTree::rowOfNode(TreeNode node) const {
  const Place place = placeOf(node);
  if (place.level == kRow) return place.index;
  return place.level == kLeaf ? std::optional(place.index / leavesARow_) : std::nullopt;
}

std::string timeOfDay(std::span<const double> row) {
  return formatPicture(row[3], "00") + ':' + formatPicture(row[4], "00") + ':' + formatPicture(row[5], "00");
}

}  // namespace zephon
