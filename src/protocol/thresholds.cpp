#include "protocol/thresholds.h"

#include <array>
#include <optional>

#include "protocol/dict_text.h"
#include "protocol/exchange.h"
#include "protocol/limit_codes.h"
#include "protocol/limit_ranges.h"
#include "protocol/limit_registers.h"
#include "protocol/pic_import.h"
#include "protocol/stay.h"

namespace zephon {
namespace {

constexpr std::size_t kKeyUpdating = 100;

struct Read {
  const DeviceCommand& command;
  std::int16_t Limits::*limit;
};
constexpr Read kReads[] = {
    {orvantis::kUVco, &Limits::UVco}, {orvantis::kUVre, &Limits::UVre}, {orvantis::kUVrs, &Limits::UVrs},
    {orvantis::kOVrs, &Limits::OVrs}, {orvantis::kOVre, &Limits::OVre}, {orvantis::kOVco, &Limits::OVco},
};

struct Write {
  const DeviceCommand& command;
  std::size_t which;
};
constexpr Write kWrites[] = {
    {orvantis::kSetOVco, editor::OVco}, {orvantis::kSetOVre, editor::OVre},
    {orvantis::kSetOVrs, editor::OVrs}, {orvantis::kSetUVco, editor::UVco},
    {orvantis::kSetUVre, editor::UVre}, {orvantis::kSetUVrs, editor::UVrs},
    {orvantis::kSetOLre, editor::OLre},
};

std::optional<Limits> readRegisters(Main& main) {
  Limits limits;
  for (const Read& read : kReads) {
    const std::int32_t raw = getDecimal(main, read.command);
    const auto volts = limitOfRegister(raw, main.link.nominalVolts);
    if (raw < 0 || !volts) return std::nullopt;
    limits.*read.limit = *volts;
  }
  return limits;
}

// Both read into Main::limits and give the overload record point.
std::optional<std::int32_t> readFirstLine(Main& main) {
  const auto limits = readRegisters(main);
  if (!limits) return std::nullopt;
  main.limits = *limits;
  const std::int32_t overload = getDecimal(main, orvantis::kOLre);
  return overload < 0 ? std::nullopt : std::optional(overload);
}

std::optional<std::int32_t> readSecondLine(Main& main) {
  return importPIC(main) ? std::optional(0) : std::nullopt;
}

// A command and its value. Left between the two, the device would take the next command's first byte for the
// value, so the value follows whatever happens meanwhile, and nothing goes out behind a lost command.
bool sendPair(Main& main, const DeviceCommand& command, double pauseMs, char value) {
  const WriteInFlight held(main);
  if (!sendText(main, command.text)) return false;
  wait(main, pauseMs);
  return sendText(main, std::string_view(&value, 1));
}

bool writeFirstLine(Main& main) {
  const Stay stay(main);
  const auto bytes =
      limitRegisters(editorValues(main.setup), main.link.nominalVolts, main.link.firmwareVersion);
  if (!bytes) return false;
  main.setup.updateLimsBtn.setTexts(dictText(main, kKeyUpdating));
  flushPort(main);
  for (const Write& write : kWrites) {
    if (&write != kWrites && !stay.wait(50)) return false;
    if (!sendPair(main, write.command, 50, static_cast<char>((*bytes)[write.which])) || !getOK(main))
      return false;
  }
  return true;
}

bool writeSecondLine(Main& main) {
  const auto bytes = limitWireBytes(editorValues(main.setup));
  if (!bytes) return false;
  return sendPair(main, tessara::kWriteCutoffs, 20, bytes->cutoffs) &&
         getEcho(main, std::string(1, bytes->cutoffs)) &&
         sendPair(main, tessara::kWriteRecords, 20, bytes->records) &&
         getEcho(main, std::string(1, bytes->records));
}

}  // namespace

bool getThresholds(Main& main) {
  const auto overload = main.link.modelLine == 0 ? readFirstLine(main) : readSecondLine(main);
  if (!overload) return false;
  setLimitRanges(main, main.link.nominalVolts);
  showLimits(main.setup, main.limits, *overload, main.link.modelLine);
  return true;
}

bool setThresholds(Main& main) {
  return main.link.modelLine == 0 ? writeFirstLine(main) : writeSecondLine(main);
}

}  // namespace zephon
