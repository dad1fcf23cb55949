#include "simulator/tessara_commands.h"

#include <algorithm>
#include <array>

#include "simulator/encode.h"
#include "simulator/sensor.h"

namespace zephon::simulator {
namespace {

using Data = std::string_view;

constexpr int kCodeBase = 48;  // the code of a "v" sample of 0
constexpr int kLimitRecord = 254;
constexpr int kLimitShutdown = 255;

const Answer kNoReply = "";

char heldInByte(int code) {
  return asChar(std::clamp(code, 0, 255));
}

Answer lineGround(Device& device, Data) {
  const double mean = lineGroundCount(device.values().volts, device.profile().rating, device.centreTapped);
  return std::string(1, heldInByte(kCodeBase + device.sample(mean)));
}

Answer neutralGround(Device& device, Data) {
  return std::string(1, heldInByte(device.sample(neutralGroundCount(device.values().neutralGroundVolts))));
}

Answer outlets(Device& device, Data) {
  switch (device.outletLetter()) {
    case '1':
      return "On";
    case 'C':
      return "Cy";
    case 'G':
      return "NG";
    case 'R':
      return "RP";
    case 'S':
      return "20";
    default:
      return "Of";
  }
}

// A limit byte is stored and echoed; the one whose character is the separator is refused.
template <int index>
Answer writeLimits(Device& device, Data data) {
  if (data[0] == '.') return std::nullopt;
  device.image.poke(index, imageByte(data[0]));
  return std::string(data);
}

template <bool tapped>
Answer wire(Device& device, Data) {
  device.centreTapped = tapped;
  return kNoReply;
}

template <bool on>
Answer autoTransmit(Device& device, Data) {
  device.switches.autoTransmit = on;
  return kNoReply;
}

constexpr Access R = Access::Read;
constexpr Access W = Access::Write;

const std::array kCommands = std::to_array<Command>({
    {"r", 0, R, "", "firmware, 4 characters", [](Device& d, Data) { return Answer(d.profile().firmware); }},
    {"i", 0, R, "", "chip number, 5 bytes", [](Device& d, Data) { return Answer(d.profile().chipBytes()); }},
    {"g", 0, R, "1*14", "phase angle of a 208/240 V supply, \"120\" or \"180\"",
     [](Device& d, Data) { return Answer(d.centreTapped ? "180" : "120"); }},
    {"v", 0, R, "", "one sample of the line-ground volts", lineGround},
    {"p", 0, R, "", "one sample of the neutral-ground volts", neutralGround},
    {"+", 0, R, "", "memory dump, 512 characters", [](Device& d, Data) { return Answer(d.image.dump()); }},
    {"t", 0, R, "", "time since the newest event, 7 characters",
     [](Device& d, Data) { return Answer(imageSpan(d.secondsSinceEvent())); }},
    {"s", 0, R, "", "outlets, 2 characters", outlets},
    {"j", 0, R, "1.67", "automatic transmit",
     [](Device& d, Data) { return Answer(d.switches.autoTransmit ? "Y" : "N"); }},

    {"a", 1, W, "", "shutdown points, echoed", writeLimits<kLimitShutdown>},
    {"b", 1, W, "", "record points, echoed", writeLimits<kLimitRecord>},
    {"O", 0, W, "", "outlets on", [](Device& d, Data) { return d.switchOutlets(true), kNoReply; }},
    {"o", 0, W, "", "outlets off", [](Device& d, Data) { return d.switchOutlets(false), kNoReply; }},
    {"c", 0, W, "", "outlets cycle", [](Device& d, Data) { return d.cycleOutlets(), kNoReply; }},
    {"k", 0, W, "1.67", "automatic transmit on", autoTransmit<true>},
    {"l", 0, W, "1.67", "automatic transmit off", autoTransmit<false>},
    {"n1", 0, W, "1*14", "supply is 120 degrees (Y)", wire<false>},
    {"n2", 0, W, "1*14", "supply is 180 degrees (centre-tapped)", wire<true>},
    {"z", 0, W, "", "clear events and counts", [](Device& d, Data) { return d.clearCounts(), kNoReply; }},
});

}  // namespace

std::span<const Command> tessaraCommands() {
  return kCommands;
}

}  // namespace zephon::simulator
