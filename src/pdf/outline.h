#pragma once

#include <string>
#include <vector>

namespace zephon {

// A place in the document that its outline names.
struct Bookmark {
  std::string title;     // one byte a character
  int level = 0;         // 0 is the outermost
  std::size_t page = 0;  // from 0 on
  double y = 0;          // points from the page's lower edge
};

// How a bookmark hangs in the tree: indices of others, -1 for none. A parent of -1 is the outline itself.
struct OutlineNode {
  int parent = -1;
  int previous = -1;
  int next = -1;
  int first = -1;
  int last = -1;
};

// A bookmark hangs under the nearest one before it of a lower level. The last element is the outline itself.
std::vector<OutlineNode> outlineTree(const std::vector<Bookmark>& bookmarks);

}  // namespace zephon
