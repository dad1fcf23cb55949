#pragma once

#include <cstddef>

namespace zephon {

// A page's size in points, and how it lies.
struct PageFormat {
  double width = 595.28;
  double height = 841.89;
  char orientation = 'p';  // "l" for landscape
};

// An area that a click opens: its lower left corner, its size in points, and where it leads.
struct PageLink {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
  std::string target;  // one byte a character
};

}  // namespace zephon
