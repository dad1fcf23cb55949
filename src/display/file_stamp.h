#pragma once

#include "files/file_kind.h"
#include "form/main.h"
#include "protocol/day_serial.h"

namespace zephon {

// What a file made now tells of itself and of the device at hand.
inline FileStamp stampOf(const Main& main) {
  const Link& link = main.link;
  return {presentTime(main.around.clock),
          link.userID,
          link.firmwareVersion,
          link.chipID,
          link.nominalVolts,
          link.modelLine};
}

}  // namespace zephon
