#pragma once

#include "files/file_kind.h"
#include "form/main.h"
#include "protocol/day_serial.h"

namespace zephon {

inline CalendarTime presentTime(const Main& main) {
  return calendarOf(main.around.clock.now().local);
}

// What a file made now tells of itself and of the device at hand.
inline FileStamp stampOf(const Main& main) {
  const Link& link = main.link;
  return {presentTime(main), link.userID,       link.firmwareVersion,
          link.chipID,       link.nominalVolts, link.modelLine};
}

}  // namespace zephon
