#pragma once

#include <string>
#include <vector>

#include "platform/virtual_loop.h"
#include "simulator/conditioner.h"

namespace zephon::simulator {

// A near end that speaks to a device by hand and notes what it hears and when.
struct BenchLine {
  struct Chunk {
    Instant at;
    std::string bytes;
  };

  explicit BenchLine(const Profile& profile = {}, const Options& options = {})
      : device(loop, profile, options), baud(profile.baud()) {
    device.say = [this](std::string_view bytes, int speed) {
      if (speed == baud) chunks.push_back({loop.now(), std::string(bytes)});
    };
  }

  // Says something and gives the device `ms` milliseconds. What it says in them.
  std::string ask(std::string_view bytes, double ms = 1000) {
    chunks.clear();
    device.hear(bytes, baud);
    loop.advance(fromMillis(ms));
    std::string said;
    for (const Chunk& chunk : chunks) said += chunk.bytes;
    return said;
  }
  void idle(double seconds) { loop.advance(fromMillis(seconds * 1000.0)); }

  VirtualLoop loop;
  Conditioner device;
  int baud;
  std::vector<Chunk> chunks;
};

inline Options quiet() {
  Options options;
  options.disturbances = false;
  return options;
}

inline std::string hex(std::string_view bytes) {
  std::string text;
  for (const char byte : bytes) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    const auto value = static_cast<unsigned char>(byte);
    text += kDigits[value >> 4];
    text += kDigits[value & 15];
  }
  return text;
}

}  // namespace zephon::simulator
