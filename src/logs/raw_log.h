#pragma once

#include <string_view>

#include "form/logs.h"

namespace zephon {

// Which log a device's raw bytes are, told by their length alone: up to 9999 the events, from 100,001 on the
// history, none between.
inline ShownLog logOfRawBytes(std::string_view bytes) {
  if (bytes.size() < 10'000) return ShownLog::Events;
  return bytes.size() > 100'000 ? ShownLog::History : ShownLog::None;
}

}  // namespace zephon
