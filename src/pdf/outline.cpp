#include "pdf/outline.h"

namespace zephon {

std::vector<OutlineNode> outlineTree(const std::vector<Bookmark>& bookmarks) {
  std::vector<OutlineNode> nodes(bookmarks.size() + 1);
  std::vector<int> open;  // the bookmarks that the next one may hang under, the innermost last
  for (std::size_t i = 0; i < bookmarks.size(); ++i) {
    const int index = static_cast<int>(i);
    while (!open.empty() && bookmarks[static_cast<std::size_t>(open.back())].level >= bookmarks[i].level)
      open.pop_back();
    nodes[i].parent = open.empty() ? -1 : open.back();
    OutlineNode& parent = open.empty() ? nodes.back() : nodes[static_cast<std::size_t>(open.back())];
    nodes[i].previous = parent.last;
    if (parent.last >= 0) nodes[static_cast<std::size_t>(parent.last)].next = index;
    if (parent.first < 0) parent.first = index;
    parent.last = index;
    open.push_back(index);
  }
  return nodes;
}

}  // namespace zephon
