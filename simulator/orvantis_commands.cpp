#include "simulator/orvantis_commands.h"

#include <array>
#include <cmath>

#include "simulator/device_clock.h"
#include "simulator/encode.h"

namespace zephon::simulator {
namespace {

using Data = std::string_view;

// Full scales of the meters' fractions.
constexpr double kVoltsScale = 512.0;
constexpr double kAmpsScale = 256.0;
constexpr double kWattsScale = 262144.0;
constexpr double kNeutralScale = 65536.0;
constexpr double kHertzScale = 8000.0;
constexpr double kPeakVoltsScale = 1024.0;
constexpr double kPowerFactorScale = 2.0;
constexpr double kEnergyUnit = 232.0;  // kWh for each one of the energy register

const Answer kDone = "OK";
const Answer kRefused = std::nullopt;

Answer oneByte(int byte) {
  return std::string(1, asChar(byte));
}
Answer yesNo(bool yes) {
  return yes ? "Y" : "N";
}

Answer powerFactor(Device& device, Data) {
  const SiteValues seen = device.values();
  return signedFraction(seen.powerFactor / kPowerFactorScale) + seen.reactive;
}

Answer energy(Device& device, Data) {
  return fixedPoint8_24(device.kilowattHours() / kEnergyUnit) + clockText(device.energySince());
}

// One reading of the meters as a share of its full scale.
template <double SiteValues::*field>
Answer meter(Device& device, double scale, int bytes) {
  return unsignedFraction(device.values().*field / scale, bytes);
}

template <Event event>
Answer count(Device& device, Data) {
  return bigEndian16(device.count(event));
}

template <std::uint8_t LimitRegisters::*limit>
Answer readLimit(Device& device, Data) {
  return oneByte(device.registers.*limit);
}

template <std::uint8_t LimitRegisters::*limit>
Answer writeLimit(Device& device, Data data) {
  device.registers.*limit = asByte(data[0]);
  return kDone;
}

template <bool Switches::*option>
Answer readSwitch(Device& device, Data) {
  return yesNo(device.switches.*option);
}

// A switch with a command for each of its two states, which asks for a "Y".
template <bool Switches::*option, bool on>
Answer turn(Device& device, Data data) {
  if (data != "Y") return kRefused;
  device.switches.*option = on;
  return kDone;
}

// A switch with one command that takes the state.
template <bool Switches::*option>
Answer writeSwitch(Device& device, Data data) {
  if (data != "Y" && data != "N") return kRefused;
  device.switches.*option = data == "Y";
  return kDone;
}

Answer chartMemory(Device& device, Data) {
  return device.profile().chartMemory == ChartFitted::None ? Answer("1") : yesNo(device.switches.chartMemory);
}

Answer startChart(Device& device, Data data) {
  if (data != "Y" || device.profile().chartMemory == ChartFitted::None) return kRefused;
  device.startChart();
  return kDone;
}

Answer chartPage(Device& device, Data data) {
  return device.chart.page(asByte(data[0]) * 0x100 + asByte(data[1]));
}

template <const ScopeKind& kind>
Answer scopeBlock(Device& device, Data) {
  return device.scopeBlock(kind);
}

Answer setClock(Device& device, Data data) {
  const auto moment = clockFromBytes(data);
  if (!moment) return kRefused;
  device.setClock(*moment);
  return kDone;
}

Answer setUserId(Device& device, Data data) {
  device.userId = data;
  return kDone;
}

Answer clearCounts(Device& device, Data data) {
  if (data != "Y") return kRefused;
  device.clearCounts();
  return kDone;
}

Answer clearEnergy(Device& device, Data data) {
  if (data != "Y") return kRefused;
  device.setEnergy(0.0);
  return kDone;
}

Answer clearEvents(Device& device, Data data) {
  if (data != "Y") return kRefused;
  device.events.ring().clear();
  return kDone;
}

Answer clearHistory(Device& device, Data data) {
  if (data != "Y") return kRefused;
  device.clearHistory();
  return kDone;
}

constexpr Access R = Access::Read;
constexpr Access W = Access::Write;
using L = LimitRegisters;
using S = Switches;
using V = SiteValues;

const std::array kCommands = std::to_array<Command>({
    {"gN", 0, R, "", "firmware, 4 characters", [](Device& d, Data) { return Answer(d.profile().firmware); }},
    {"gO", 0, R, "", "chip number, 5 bytes", [](Device& d, Data) { return Answer(d.profile().chipBytes()); }},
    {"gP", 0, R, "", "stored name, 10 characters", [](Device& d, Data) { return Answer(d.userId); }},
    {"gV", 0, R, "", "voltage rating, 1 byte", [](Device& d, Data) { return oneByte(d.profile().rating); }},
    {"gR", 0, R, "", "clock, 19 characters", [](Device& d, Data) { return Answer(clockText(d.clock())); }},

    {"g4", 0, R, "", "line-neutral volts",
     [](Device& d, Data) { return meter<&V::volts>(d, kVoltsScale, 2); }},
    {"g6", 0, R, "", "amps", [](Device& d, Data) { return meter<&V::amps>(d, kAmpsScale, 2); }},
    {"g8", 0, R, "", "watts", [](Device& d, Data) { return meter<&V::watts>(d, kWattsScale, 2); }},
    {"g5", 0, R, "", "neutral-ground volts",
     [](Device& d, Data) { return meter<&V::neutralGroundVolts>(d, kNeutralScale, 3); }},
    {"g;", 0, R, "", "hertz", [](Device& d, Data) { return meter<&V::hertz>(d, kHertzScale, 2); }},
    {"g7", 0, R, "", "peak volts",
     [](Device& d, Data) { return Answer(unsignedFraction(d.values().peakVolts() / kPeakVoltsScale, 2)); }},
    {"g:", 0, R, "", "power factor and its letter", powerFactor},
    {"g9", 0, R, "", "energy, 4 bytes, and its date, 19 characters", energy},

    {"g>", 0, R, "", "power outages", count<Event::Outage>},
    {"g@", 0, R, "", "under voltages, shutdown", count<Event::UnderShutdown>},
    {"g?", 0, R, "", "under voltages, record", count<Event::UnderRecord>},
    {"gA", 0, R, "", "over voltages, record", count<Event::OverRecord>},
    {"gB", 0, R, "", "over voltages, shutdown", count<Event::OverShutdown>},
    {"gC", 0, R, "", "surges", count<Event::Surge>},
    {"g_", 0, R, "1.GB0", "current overloads", count<Event::Overload>},

    {"gE", 0, R, "", "event log, 8196 bytes", [](Device& d, Data) { return Answer(d.events.frame()); }},
    {"gD", 0, R, "", "half-hour history, 110599 bytes",
     [](Device& d, Data) { return Answer(d.historyFrame()); }},
    {"g`", 2, R, "1.GB0", "chart memory, a page of 32770 bytes", chartPage},

    {"gS", 0, R, "", "scope, voltage: mark and 256 samples", scopeBlock<kScopeVolts>},
    {"gT", 0, R, "", "scope, current: mark and 256 samples", scopeBlock<kScopeAmps>},
    {"gU", 0, R, "", "scope, both: mark and 256 samples", scopeBlock<kScopeBoth>},

    {"gH", 0, R, "", "under voltage shutdown point", readLimit<&L::uvco>},
    {"gI", 0, R, "", "under voltage record point", readLimit<&L::uvre>},
    {"gJ", 0, R, "", "under voltage restore point", readLimit<&L::uvrs>},
    {"gM", 0, R, "", "over voltage restore point", readLimit<&L::ovrs>},
    {"gL", 0, R, "", "over voltage record point", readLimit<&L::ovre>},
    {"gK", 0, R, "", "over voltage shutdown point", readLimit<&L::ovco>},
    {"gZ", 0, R, "", "overload record point, amps", readLimit<&L::overload>},

    {"gQ", 0, R, "", "outlets", [](Device& d, Data) { return oneByte(d.outletLetter()); }},
    {"gY", 0, R, "", "battery", [](Device& d, Data) { return oneByte(d.battery); }},
    {"g^", 0, R, "1.GB0", "automatic transmit", readSwitch<&S::autoTransmit>},
    {"ga", 0, R, "1.GB0", "chart memory", chartMemory},
    {"gb", 0, R, "1.IBR", "ground detection", readSwitch<&S::groundDetection>},
    {"gg", 0, R, "1.JB3", "overload shutdown", readSwitch<&S::overloadShutdown>},
    {"gh", 0, R, "1.KD1", "power fail hold", readSwitch<&S::powerFailHold>},

    {"s:", 10, W, "", "store a name", setUserId},
    {"s;", 7, W, "", "set the clock", setClock},
    {"s4", 1, W, "", "under voltage shutdown point", writeLimit<&L::uvco>},
    {"s5", 1, W, "", "under voltage record point", writeLimit<&L::uvre>},
    {"s6", 1, W, "", "under voltage restore point", writeLimit<&L::uvrs>},
    {"s9", 1, W, "", "over voltage restore point", writeLimit<&L::ovrs>},
    {"s8", 1, W, "", "over voltage record point", writeLimit<&L::ovre>},
    {"s7", 1, W, "", "over voltage shutdown point", writeLimit<&L::ovco>},
    {"sB", 1, W, "", "overload record point, amps", writeLimit<&L::overload>},

    {"s1", 0, W, "", "outlets off", [](Device& d, Data) { return d.switchOutlets(false), kDone; }},
    {"s2", 0, W, "", "outlets on", [](Device& d, Data) { return d.switchOutlets(true), kDone; }},
    {"s3", 0, W, "", "outlets cycle", [](Device& d, Data) { return d.cycleOutlets(), kDone; }},
    {"sC", 1, W, "1.GB0", "automatic transmit on", turn<&S::autoTransmit, true>},
    {"sD", 1, W, "1.GB0", "automatic transmit off", turn<&S::autoTransmit, false>},
    {"sE", 1, W, "1.GB0", "chart memory on", startChart},
    {"sF", 1, W, "1.IBR", "ground detection", writeSwitch<&S::groundDetection>},
    {"sH", 1, W, "1.JB3", "overload shutdown on", turn<&S::overloadShutdown, true>},
    {"sI", 1, W, "1.JB3", "overload shutdown off", turn<&S::overloadShutdown, false>},
    {"sJ", 1, W, "1.KD1", "power fail hold", writeSwitch<&S::powerFailHold>},
    {"s=", 1, W, "", "clear the event counts", clearCounts},
    {"s?", 1, W, "", "clear the energy", clearEnergy},
    {"s>", 1, W, "", "clear the event log", clearEvents},
    {"s@", 1, W, "", "clear the history", clearHistory},
});

}  // namespace

std::span<const Command> orvantisCommands() {
  return kCommands;
}

}  // namespace zephon::simulator
