#pragma once

#include <functional>

namespace zephon {

// How a page's handlers leave their page: what lies above them is handed in.
struct PageExits {
  std::function<void()> linkLost;  // the device did not answer while the page was wanted
};

}  // namespace zephon
