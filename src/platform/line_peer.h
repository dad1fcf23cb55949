#pragma once

#include <functional>
#include <string_view>

namespace zephon {

// The far end of a serial line. What it hears comes through hear(); what it says it hands to `say`, which the
// line sets. Both at the pace that the line and the peer agree on: the line adds none of its own.
class LinePeer {
 public:
  LinePeer() = default;
  LinePeer(const LinePeer&) = delete;
  LinePeer& operator=(const LinePeer&) = delete;
  virtual ~LinePeer() = default;

  // Bytes written by the near end while its speed was `baud`.
  virtual void hear(std::string_view bytes, int baud) = 0;
  // The near end opened or closed the port, or purged it: what is still on its way is lost.
  virtual void lineOpened(bool /*open*/) {}
  virtual void linePurged() {}

  // Delivers bytes to the near end now. They are lost when its speed is not `baud`.
  std::function<void(std::string_view bytes, int baud)> say = [](std::string_view, int) {};
};

}  // namespace zephon
