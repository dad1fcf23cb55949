#pragma once

#include <cstdint>

namespace zephon {

enum class Page { None, Scope, Chart, Setup, Measurement, Outlets, Data, Com };

// One stay on a page, from the press of its button to its release. A driver that comes back from the event
// loop asks whether its visit still stands.
struct PageVisit {
  Page page = Page::None;
  std::uint64_t number = 0;
  bool operator==(const PageVisit&) const = default;
};

// The page flags; at most one is set at a time.
struct Pages {
  bool scopeOn = false;
  bool chartOn = false;
  bool setupOn = false;
  bool measuring = false;
  bool outletsOn = false;
  bool dataOn = false;
  bool comOn = false;
  bool dataPageActive = false;  // the Data page is on screen; clearing it cancels a running transfer

  PageVisit wanted;          // what the user asked for last
  std::uint64_t visits = 0;  // all visits so far, for numbering
};

}  // namespace zephon
