#include <gtest/gtest.h>

#include "logs/event_tree.h"
#include "logs/history_tree.h"

namespace zephon {
namespace {

std::vector<std::string> dictionary() {
  std::vector<std::string> dict;
  for (int key = 0; key <= 270; ++key) dict.push_back("k" + std::to_string(key));
  return dict;
}

// The tree as indented lines; each node's way up is tried on the way down.
std::string drawn(const TreeSource& tree, TreeNode node = kTreeRoot, const std::string& indent = "") {
  std::string lines;
  for (std::size_t i = 0; i < tree.childCount(node); ++i) {
    const TreeNode child = tree.child(node, i);
    EXPECT_EQ(tree.parent(child), node);
    EXPECT_EQ(tree.indexInParent(child), i);
    EXPECT_EQ(tree.expanded(child), node == kTreeRoot);
    if (const auto row = tree.rowOfNode(child); row && tree.rowOfNode(node) != row) {
      EXPECT_EQ(tree.nodeOfRow(*row), child);
    }
    lines += indent + tree.text(child) + '\n' + drawn(tree, child, indent + ' ');
  }
  return lines;
}

TEST(EventTree, groupsAndNamesEvents) {
  const LogTable<8> events = {{13, 31, 5, 14, 2, 7, 8, 133},
                              {13, 31, 5, 14, 3, 0, 136, 133},
                              {13, 1, 6, 0, 0, 0, 1, 0},
                              {14, 2, 6, 0, 0, 0, 64, 31.5},
                              {9, 2, 13, 0, 0, 0, 3, 5}};
  const EventTree tree(events, {10, 20, 30, 40, 50}, dictionary());
  EXPECT_EQ(drawn(tree),
            "2013\n k105\n  31\n   14:02:07 k61 (k58 = 133)\n   14:03:00 k116 \n"
            " k106\n  1\n   00:00:00 k64 \n"
            "2014\n k106\n  2\n   00:00:00 k65 (k58 = 31.5)\n"
            "2009\n \n  2\n   00:00:00  (k58 = 5)\n");
  EXPECT_FALSE(tree.nodeOfRow(events.size()));
  EXPECT_TRUE(drawn(EventTree({}, {}, dictionary())).empty());
}

TEST(EventTree, coloursByTheLegend) {
  const std::pair<double, Colour> codes[] = {{1, 10},        {4, 30},  {16, 50}, {32, 49344},
                                             {64, 16711935}, {130, 0}, {3, 0}};
  for (const auto& [code, colour] : codes) {
    const LogTable<8> events = {{13, 1, 1, 0, 0, 0, code, 0}};
    const EventTree tree(events, {10, 20, 30, 40, 50}, dictionary());
    EXPECT_EQ(tree.colour(tree.nodeOfRow(0).value()), colour) << code;
  }
}

TEST(HistoryTree, showsHalfHoursAndTheirValues) {
  const LogTable<12> history = {{13, 31, 5, 23, 30, 0, 118.25, -4, 119.5, 125, 112.07, 1.5},
                                {13, 1, 6, 0, 0, 0, 0, 8, 120, 125, 112, 0.004},
                                {13, 1, 6, 0, 20, 5, 0, 0, 0, 0, 0, 0}};
  const HistoryTree tree(history, dictionary());
  EXPECT_EQ(
      drawn(tree),
      "2013\n k105\n  31\n   23:30:00 - 00:00:00\n"
      "    k82 118.25 (W)\n    k83 -4 (W)\n    k84 119.5 (VRMS)\n    k85 125 (VRMS)\n    k86 112.07 (VRMS)\n"
      "    k87 1.5 (ARMS)\n"
      " k106\n  1\n   00:00:00 - 00:20:05\n"
      "    k82 0 (W)\n    k83 8 (W)\n    k84 120 (VRMS)\n    k85 125 (VRMS)\n    k86 112 (VRMS)\n"
      "    k87 0.004 (ARMS)\n");
}

}  // namespace
}  // namespace zephon
