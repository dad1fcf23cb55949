#pragma once

#include "protocol/exchange.h"
#include "protocol/visit.h"

namespace zephon {

// The page visit in which a driver began. Clicks are served inside exchanges and pauses, so a driver that
// comes back from one asks whether its visit still stands, and winds down silently when it does not.
class Stay {
 public:
  explicit Stay(Main& main) : main_(main), begun_(main.pages.wanted) {}

  bool stands() const { return zephon::stands(main_, begun_); }

  // The pause between commands. False when the visit is over at its end.
  bool wait(double milliseconds) const {
    zephon::wait(main_, milliseconds);
    return stands();
  }

 private:
  Main& main_;
  PageVisit begun_;
};

}  // namespace zephon
